import QtQuick
import Vantle.Panel

// Running text.
Text {
    // False if a control already says the same to screen readers.
    property bool isSpoken: true

    width: parent ? parent.width : implicitWidth
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignLeft
    color: Appearance.primary
    font.pointSize: Style.body

    Accessible.ignored: !isSpoken || text === ""
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    // The role makes the text focusable, but the keyboard cannot reach it.
    Component.onCompleted: Accessible.focusable = false
}
