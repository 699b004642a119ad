import QtQuick
import Vantle.Panel

// Running text.
Text {
    // Not where a control says the same.
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
    // The role makes it focusable, which a text of ours is not.
    Component.onCompleted: Accessible.focusable = false
}
