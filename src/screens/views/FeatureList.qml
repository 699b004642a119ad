import QtQuick
import Vantle.Cards
import Vantle.Panel

// Lines of text, each with a symbol beside it.
Group {
    id: list

    // Each line has a "symbol" and a "text".
    required property var lines

    spacing: 12

    Repeater {
        model: list.lines

        Item {
            id: line

            required property var modelData
            readonly property real frame: Math.round(22 * Style.scale)

            width: parent ? parent.width : 0
            height: Math.max(frame, label.height)

            Symbol {
                x: (line.mirrored ? line.width - line.frame : 0) + (line.frame - width) / 2
                y: (line.frame - height) / 2
                name: line.modelData.symbol
                color: Appearance.accent
                fontSize: 14 * Style.scale
            }

            BodyText {
                id: label

                anchors.left: parent.left
                anchors.leftMargin: line.frame + 12
                anchors.right: parent.right
                y: Math.max(0, (line.frame - implicitHeight) / 2)
                text: line.modelData.text
            }

            readonly property bool mirrored: LayoutMirroring.enabled
        }
    }
}
