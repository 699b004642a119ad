import QtQuick
import Vantle.Panel

// Shows that a capture is selected, or otherwise that it is pinned.
Appearing {
    id: mark

    property bool isSelected: false
    property bool isPinned: false
    readonly property string symbol: glyph.name

    isShown: isSelected || isPinned
    isEased: !glyph.isPin
    width: glyph.width + 2 * 6
    height: glyph.height + 2 * 6

    Rectangle {
        anchors.fill: glyph
        anchors.margins: 2
        radius: width / 2
        color: glyph.isPin ? "#ff9500" : Appearance.accent
    }

    Symbol {
        id: glyph

        // Keeps its value while the mark fades out.
        property bool isPin

        anchors.centerIn: parent
        name: isPin ? "pin.circle.fill" : "checkmark.circle.fill"
        fontSize: 16

        Binding on isPin {
            when: mark.isShown
            value: !mark.isSelected
            restoreMode: Binding.RestoreNone
        }
    }
}
