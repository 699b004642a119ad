import QtQuick
import Vantle.Panel

// Running text.
Text {
    width: parent ? parent.width : implicitWidth
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignLeft
    color: Appearance.primary
    font.pointSize: Style.body

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
