import QtQuick
import Vantle.Panel

// Handles the keys while the panel has the keyboard.
QtObject {
    id: keys

    required property PanelModel panel
    required property TileRow row

    function handleOnTrashed(event, tile) {
        const isUndo = event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space;
        if (!isUndo) return;
        panel.undoTrash(tile.captureId);
        event.accepted = true;
    }

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
        default:
            if (tile.isTrashed)
                handleOnTrashed(event, tile);
            else
                handleOnCapture(event, tile);
            return;
        }
        event.accepted = true;
    }

    function handleOnCapture(event, tile) {
        switch (event.key) {
        case Qt.Key_Return:
        case Qt.Key_Enter:
            panel.open(tile.captureId);
            break;
        case Qt.Key_Space:
            if (event.isAutoRepeat)
                break;
            if (event.modifiers & Qt.ControlModifier)
                panel.toggleSelect(tile.captureId);
            else
                panel.preview(tile.captureId);
            break;
        case Qt.Key_F2:
            panel.beginRenaming(tile.captureId);
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

    function isMenu(event) {
        return event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && (event.modifiers & Qt.ShiftModifier));
    }

    function showMenu(tile) {
        if (tile && !tile.isTrashed)
            tile.showMenuByKeyboard();
        else
            panel.showBackgroundMenu(row.mapToItem(null, 0, 0, row.width, row.height), true);
    }

    function handle(event) {
        // A space is meant for the tile under the pointer, if there is one.
        const isPreview = event.key === Qt.Key_Space && event.modifiers === Qt.NoModifier;
        const tile = (isPreview ? row.hoveredTile() : null) ?? row.focusedTile();
        if (event.key === Qt.Key_Escape) {
            clearSelectionOrCloseAll();
            event.accepted = true;
        } else if (isMenu(event)) {
            showMenu(tile);
            event.accepted = true;
        } else if (event.matches(StandardKey.SelectAll)) {
            panel.selectAll();
            event.accepted = true;
        } else if (event.matches(StandardKey.Copy) && (tile || panel.selectedCount > 0)) {
            if (panel.selectedCount > 0)
                panel.copySelected();
            else
                panel.copy(tile.captureId);
            event.accepted = true;
        } else if (event.matches(StandardKey.Undo)) {
            panel.undo();
            event.accepted = true;
        } else if (tile) {
            handleOnTile(event, tile);
        } else if (event.key === Qt.Key_Left || event.key === Qt.Key_Right) {
            row.focusTile(panel.count - 1);
            event.accepted = true;
        }
    }
}
