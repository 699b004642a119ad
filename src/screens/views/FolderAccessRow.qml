import QtQuick
import Vantle.Cards
import Vantle.Panel
import Vantle.Screens

// Shows whether the folder may be read, and what to do about it.
Group {
    id: row

    required property FolderAccessModel access

    Item {
        // A single button fits beside the texts if the row is wide enough.
        readonly property bool isBeside: row.access.buttons.length === 1 && width > 440 * Style.scale

        width: parent.width
        height: isBeside ? Math.max(symbol.height, texts.implicitHeight, buttons.height)
                         : texts.implicitHeight + Style.rowPadding + buttons.height

        Symbol {
            id: symbol

            anchors.left: parent.left
            y: parent.isBeside ? (parent.height - height) / 2 : 1
            name: row.access.symbol
            color: row.access.isGranted ? Style.green
                                        : row.access.isDenied ? Style.orange : Appearance.secondary
            fontSize: 17 * Style.scale
        }

        RowLabels {
            id: texts

            anchors.left: symbol.right
            anchors.leftMargin: 10
            anchors.right: parent.right
            anchors.rightMargin: parent.isBeside ? buttons.width + 16 : 0
            height: parent.isBeside ? parent.height : implicitHeight
            title: row.access.title
            weight: Font.DemiBold
            caption: row.access.caption
        }

        Flow {
            id: buttons

            readonly property real natural: {
                let sum = -spacing;
                for (let i = 0; i < children.length; ++i)
                    sum += children[i].implicitWidth > 0 ? children[i].implicitWidth + spacing : 0;
                return sum;
            }

            anchors.right: parent.right
            y: parent.isBeside ? (parent.height - height) / 2 : parent.height - height
            width: Math.min(natural, parent.width)
            spacing: 8

            Repeater {
                model: row.access.buttons

                PushButton {
                    required property int index
                    required property string modelData

                    text: modelData
                    onClicked: row.access.press(index) // qmllint disable unqualified
                }
            }
        }
    }
}
