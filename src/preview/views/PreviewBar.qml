import QtQuick
import Vantle.Cards
import Vantle.Panel
import Vantle.Preview

// The line below the picture: its name, what is known about it, and what can be done with it.
Item {
    id: bar

    required property PreviewModel preview

    Column {
        anchors.verticalCenter: parent.verticalCenter
        width: actions.x - 12
        spacing: 2

        Text {
            width: parent.width
            text: bar.preview.fileName
            textFormat: Text.PlainText
            elide: Text.ElideMiddle
            maximumLineCount: 1
            horizontalAlignment: Text.AlignLeft
            color: Appearance.primary
            font.pixelSize: 13
            font.weight: Font.DemiBold
        }

        Text {
            width: parent.width
            text: bar.preview.details
            textFormat: Text.PlainText
            elide: Text.ElideRight
            maximumLineCount: 1
            horizontalAlignment: Text.AlignLeft
            color: Appearance.secondary
            font.pixelSize: 11
        }
    }

    Row {
        id: actions

        x: parent.width - width
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        TapIcon {
            symbol: "chevron.up"
            help: qsTr("Previous page")
            visible: bar.preview.hasPages
            onAction: bar.preview.stepPage(-1)
        }

        TapIcon {
            symbol: "chevron.down"
            help: qsTr("Next page")
            visible: bar.preview.hasPages
            onAction: bar.preview.stepPage(1)
        }

        TapIcon {
            symbol: bar.preview.isReal ? "minus.magnifyingglass" : "plus.magnifyingglass"
            help: bar.preview.isReal ? qsTr("Show the whole picture") : qsTr("Show real pixels")
            visible: bar.preview.hasOtherZoom
            onAction: bar.preview.toggleRealPixels(Qt.point(0, 0))
        }

        TapIcon {
            symbol: "arrow.up.right.square"
            help: qsTr("Open")
            onAction: bar.preview.open()
        }

        TapIcon {
            symbol: "doc.on.doc"
            help: qsTr("Copy to clipboard")
            onAction: bar.preview.copy()
        }

        TextCopyButton {
            preview: bar.preview
            visible: bar.preview.canCopyText
        }

        TapIcon {
            symbol: "trash"
            help: qsTr("Move to Trash")
            onAction: bar.preview.trash()
        }

        TapIcon {
            symbol: "xmark"
            help: qsTr("Close")
            onAction: bar.preview.close()
        }
    }
}
