import QtQuick

// One of our own symbols, as large as letters of `fontSize` beside it, in one colour.
Image {
    id: symbol

    required property string name
    property real fontSize: 13
    property color color: "white"
    // On the symbols' grid of 16 units.
    property real strokeWidth: 1.5

    // The grid is as much larger than the letters as letters are than their capitals.
    readonly property real side: Math.round(fontSize * 16 / 13)

    width: side
    height: side
    // One value, so that both sides change at once. The linter takes it for a size in fractions.
    sourceSize: Qt.size(side, side) // qmllint disable
    source: "image://symbol/%1/%2/%3".arg(name).arg(String(color).slice(-6)).arg(strokeWidth)
}
