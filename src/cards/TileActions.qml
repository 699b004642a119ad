import QtQuick
import Vantle.Panel

// The actions for one capture.
Row {
    id: actions

    required property PanelModel panel
    required property string captureId
    required property bool isPinned
    required property bool isCopied
    property bool isOnDark: false

    TapIcon {
        visible: actions.panel.hasTimer
        symbol: actions.isPinned ? "pin.fill" : "pin"
        help: actions.isPinned ? qsTr("Unpin (dismiss on timer again)") : qsTr("Pin (ignore the timer)")
        isOnDark: actions.isOnDark
        onAction: actions.panel.togglePin(actions.captureId)
    }

    TapIcon {
        symbol: actions.isCopied ? "checkmark" : "doc.on.doc"
        help: qsTr("Copy to clipboard")
        isOnDark: actions.isOnDark
        onAction: actions.panel.copy(actions.captureId)
    }

    ShareButton {
        help: qsTr("Share…")
        isOnDark: actions.isOnDark
        onShare: anchor => actions.panel.share(actions.captureId, anchor)
    }

    TapIcon {
        symbol: "folder"
        help: qsTr("Reveal in Finder")
        isOnDark: actions.isOnDark
        onAction: actions.panel.reveal(actions.captureId)
    }

    TapIcon {
        symbol: "trash"
        help: qsTr("Move to Trash")
        isOnDark: actions.isOnDark
        onAction: actions.panel.trash(actions.captureId)
    }
}
