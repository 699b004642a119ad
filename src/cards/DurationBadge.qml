import QtQuick

// How long a recording is.
Rectangle {
    property alias text: label.text

    width: row.width + 2 * 7
    height: row.height + 2 * 3
    radius: height / 2
    color: Qt.rgba(0, 0, 0, 0.55)

    Row {
        id: row

        anchors.centerIn: parent
        spacing: 4

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "video.fill"
            fontSize: 10
        }

        Text {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            color: "white"
            font.pixelSize: 10
            font.weight: Font.DemiBold
        }
    }
}
