import QtQuick
import Vantle.Panel

// Shows the length of a recording.
PlateView {
    property alias text: label.text

    width: Math.ceil(row.width) + 2 * 7
    height: row.height + 2 * 3
    cornerRadius: height / 2
    fill: Qt.rgba(0, 0, 0, 0.55)

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
