import QtQuick
import Vantle.Panel

// Says over a thumbnail that its file is gone.
Item {
    id: notice

    PlateView {
        anchors.fill: text
        anchors.margins: -6
        cornerRadius: 8
        fill: Qt.rgba(0, 0, 0, 0.7)
    }

    Text {
        id: text

        anchors.centerIn: parent
        width: Math.min(implicitWidth, notice.width - 20)
        text: qsTr("The file is gone")
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        color: "white"
        font.pixelSize: 11
        font.weight: Font.DemiBold
    }
}
