import QtQuick
import Vantle.Preview

// Handles the keys of the preview.
QtObject {
    id: keys

    required property PreviewModel preview

    function handle(event) {
        event.accepted = event.modifiers & Qt.ControlModifier ? handleWithControl(event) : handleAlone(event);
    }

    function handleWithControl(event) {
        if (event.key !== Qt.Key_C) return false;
        preview.copy();
        return true;
    }

    function handleAlone(event) {
        switch (event.key) {
        case Qt.Key_Escape:
            preview.close();
            return true;
        case Qt.Key_Space:
            // The key that opened the preview may still be held.
            if (event.isAutoRepeat)
                return true;
            if (preview.isRecording)
                preview.open();
            else
                preview.close();
            return true;
        case Qt.Key_Left:
            preview.step(-1);
            return true;
        case Qt.Key_Right:
            preview.step(1);
            return true;
        case Qt.Key_PageUp:
            preview.stepPage(-1);
            return true;
        case Qt.Key_PageDown:
            preview.stepPage(1);
            return true;
        case Qt.Key_1:
            preview.toggleRealPixels(Qt.point(0, 0));
            return true;
        case Qt.Key_Return:
        case Qt.Key_Enter:
            preview.open();
            return true;
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            preview.trash();
            return true;
        default:
            return false;
        }
    }
}
