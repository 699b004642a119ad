import QtQuick
import Vantle.Panel

// The actions for all selected captures, on the card's upper edge.
Item {
    id: bar

    required property PanelModel panel
    // Keeps the last number while the bar fades out.
    property int shownCount

    width: Math.ceil(row.width)
    height: row.height
    opacity: panel.selectedCount > 0 ? 1 : 0
    visible: opacity > 0

    Behavior on opacity { NumberAnimation { duration: 180; easing.type: Easing.OutQuad } }

    Binding on shownCount {
        when: bar.panel.selectedCount > 0
        value: bar.panel.selectedCount
        restoreMode: Binding.RestoreNone
    }

    ShadowView {
        anchors.fill: parent
        anchors.margins: -margin
        blur: 6
        verticalOffset: 2
        strength: 0.25
        cornerRadius: bar.height / 2
    }

    PlateView {
        anchors.fill: parent
        cornerRadius: height / 2
        fill: Qt.rgba(0, 0, 0, 0.7)
        borderWidth: 1
        borderColor: Qt.rgba(1, 1, 1, 0.35)
    }

    PressCatcher {}

    Row {
        id: row

        enabled: bar.panel.selectedCount > 0
        topPadding: 2
        bottomPadding: 2
        rightPadding: 2

        Text {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            leftPadding: 8
            rightPadding: 6
            text: qsTr("%n selected", "", bar.shownCount)
            color: "white"
            font.pixelSize: 11
            font.weight: Font.DemiBold
        }

        TapIcon {
            symbol: "doc.on.doc"
            help: qsTr("Copy selected")
            isOnDark: true
            onAction: bar.panel.copySelected()
        }

        TapIcon {
            symbol: "trash"
            help: qsTr("Move selected to Trash")
            isOnDark: true
            onAction: bar.panel.trashSelected()
        }

        TapIcon {
            symbol: "xmark"
            help: qsTr("Dismiss selected")
            isOnDark: true
            onAction: bar.panel.removeSelected()
        }
    }
}
