pragma ComponentBehavior: Bound

import QtQuick
import Vantle.Panel

// The line under a capture that is alone: what it is called, and how large it is.
Item {
    id: row

    required property PanelModel panel

    height: 30

    Repeater {
        model: row.panel.count === 1 ? row.panel.captures : null

        delegate: Column {
            id: lines

            required property string fileName
            required property string pixelSizeText

            width: row.width
            spacing: 1

            Text {
                width: lines.width
                text: lines.fileName
                textFormat: Text.PlainText
                elide: Text.ElideMiddle
                maximumLineCount: 1
                color: Appearance.primary
                font.pixelSize: 12
                font.weight: Font.DemiBold
            }

            Text {
                width: lines.width
                text: lines.pixelSizeText
                textFormat: Text.PlainText
                color: Appearance.secondary
                font.pixelSize: 11
            }
        }
    }
}
