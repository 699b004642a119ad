import QtQuick

// One of the program's symbols, in one colour and as large as letters of `fontSize` beside it.
Image {
    id: symbol

    required property string name
    property real fontSize: 13
    property color color: "white"
    // The width of the strokes on the symbols' grid of 16 units.
    property real strokeWidth: 1.5

    // A symbol of 16 pixels goes with letters of 13 pixels.
    readonly property real side: Math.round(fontSize * 16 / 13)

    width: side
    height: side
    // One value, so that both sides change at once. The linter takes it for a size in fractions.
    sourceSize: Qt.size(side, side) // qmllint disable
    source: "image://symbol/%1/%2/%3".arg(name).arg(String(color).slice(-6)).arg(strokeWidth)
}
