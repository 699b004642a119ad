import QtQuick

// How long a recording is.
Rectangle {
    property alias text: label.text

    width: label.width + 2 * 7
    height: label.height + 2 * 3
    radius: height / 2
    color: Qt.rgba(0, 0, 0, 0.55)

    Text {
        id: label

        anchors.centerIn: parent
        color: "white"
        font.pixelSize: 10
        font.weight: Font.DemiBold
    }
}
