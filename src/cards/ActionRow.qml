pragma ComponentBehavior: Bound

import QtQuick
import Vantle.Panel

// The row below a single capture: its name, its size and age, and its actions.
Item {
    id: row

    required property PanelModel panel

    height: 30

    Repeater {
        model: row.panel.count === 1 ? row.panel.captures : null

        delegate: Item {
            id: line

            required property string captureId
            required property string fileName
            required property bool isPinned
            required property bool isCopied
            required property bool isLeaving
            required property string trashNotice

            anchors.fill: parent
            visible: !isLeaving && trashNotice === ""

            Column {
                anchors.verticalCenter: parent.verticalCenter
                width: actions.x - 8
                spacing: 1

                Text {
                    width: parent.width
                    text: line.fileName
                    textFormat: Text.PlainText
                    elide: Text.ElideMiddle
                    maximumLineCount: 1
                    horizontalAlignment: Text.AlignLeft
                    color: Appearance.primary
                    font.pixelSize: 12
                    font.weight: Font.DemiBold
                }

                Text {
                    width: parent.width
                    text: row.panel.subtitle
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    maximumLineCount: 1
                    horizontalAlignment: Text.AlignLeft
                    color: Appearance.secondary
                    font.pixelSize: 11
                }
            }

            TileActions {
                id: actions

                x: parent.width - width
                anchors.verticalCenter: parent.verticalCenter
                panel: row.panel
                captureId: line.captureId
                isPinned: line.isPinned
                isCopied: line.isCopied
            }
        }
    }
}
