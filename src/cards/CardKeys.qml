import QtQuick
import Vantle.Panel

// Handles the keys while the panel has the keyboard.
QtObject {
    id: keys

    required property PanelModel panel
    required property TileRow row

    function trash(tile) {
        if (tile.isSelected)
            panel.trashSelected();
        else
            panel.trash(tile.captureId);
    }

    function clearSelectionOrCloseAll() {
        if (panel.selectedCount > 0)
            panel.clearSelection();
        else
            panel.closeAll();
    }

    function handleOnTile(event, tile) {
        switch (event.key) {
        case Qt.Key_Left:
            row.focusTile(tile.position - 1);
            break;
        case Qt.Key_Right:
            row.focusTile(tile.position + 1);
            break;
        case Qt.Key_Home:
            row.focusTile(0);
            break;
        case Qt.Key_End:
            row.focusTile(panel.count - 1);
            break;
        case Qt.Key_Return:
        case Qt.Key_Enter:
            panel.open(tile.captureId);
            break;
        case Qt.Key_Space:
            panel.toggleSelect(tile.captureId);
            break;
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            trash(tile);
            break;
        default:
            return;
        }
        event.accepted = true;
    }

    function handle(event) {
        const tile = row.focusedTile();
        if (event.key === Qt.Key_Escape) {
            clearSelectionOrCloseAll();
            event.accepted = true;
        } else if (tile) {
            handleOnTile(event, tile);
        } else if (event.key === Qt.Key_Left || event.key === Qt.Key_Right) {
            row.focusTile(panel.count - 1);
            event.accepted = true;
        }
    }
}
