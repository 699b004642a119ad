import QtQuick
import Vantle.Panel

// The name of a tile's capture, on one line.
Text {
    textFormat: Text.PlainText
    elide: Text.ElideMiddle
    maximumLineCount: 1
    horizontalAlignment: Text.AlignHCenter
    color: Appearance.secondary
    font.pointSize: Appearance.fontPoints(10.5)
    font.weight: Font.Medium
}
