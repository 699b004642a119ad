import QtQuick
import Vantle.Panel

// A short text on a dark plate, in the middle of a picture.
Item {
    id: notice

    required property string text

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    PlateView {
        anchors.fill: label
        anchors.margins: -6
        cornerRadius: 8
        fill: Qt.rgba(0, 0, 0, 0.7)
    }

    Text {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, notice.width - 20)
        height: Math.min(implicitHeight, notice.height - 20)
        text: notice.text
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        color: "white"
        font.pixelSize: 11
        font.weight: Font.DemiBold
    }
}
