import QtQuick
import QtQuick.Templates as T

// Content that scrolls if it is higher than the area. Scrolls to the item that gets the keyboard.
Flickable {
    id: area

    default property alias content: holder.data
    readonly property Item focused: Window.activeFocusItem

    objectName: "area"
    contentWidth: width
    contentHeight: Math.max(height, holder.childrenRect.height)
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.VerticalFlick
    clip: true

    onFocusedChanged: if (focused) reveal(focused)

    // Scrolls for keys that no control has handled.
    function scrollBy(event) {
        const line = 40;
        const page = height - line;
        const distance = {
            [Qt.Key_Up]: -line, [Qt.Key_Down]: line,
            [Qt.Key_PageUp]: -page, [Qt.Key_PageDown]: page,
            [Qt.Key_Home]: -contentHeight, [Qt.Key_End]: contentHeight
        }[event.key];
        if (distance === undefined) return;
        contentY = Math.max(0, Math.min(contentHeight - height, contentY + distance));
        event.accepted = true;
    }

    // Scrolls only as far as necessary.
    function reveal(item) {
        if (!isInside(item)) return;
        const margin = 12;
        const top = item.mapToItem(holder, 0, 0).y - margin;
        const bottom = top + item.height + 2 * margin;
        if (top < contentY)
            contentY = Math.max(0, top);
        else if (bottom > contentY + height)
            contentY = Math.min(contentHeight - height, bottom - height);
    }

    function isInside(item) {
        for (let above = item.parent; above; above = above.parent)
            if (above === holder)
                return true;
        return false;
    }

    Item {
        id: holder

        width: area.width
        height: area.contentHeight
    }

    T.ScrollBar.vertical: T.ScrollBar {
        id: bar

        implicitWidth: 10
        padding: 2
        minimumSize: 0.1
        visible: size < 1

        // Assistive programs do not need the bar: the area scrolls to the item that has the
        // keyboard.
        Accessible.ignored: true

        contentItem: Rectangle {
            implicitWidth: 6
            radius: 3
            color: Style.ink
            opacity: bar.pressed ? 0.5 : bar.hovered || bar.active ? 0.35 : 0.2

            Behavior on opacity { NumberAnimation { duration: 120 } }
        }
    }
}
