import QtQuick
import Vantle.Menus
import Vantle.Panel

// A menu: its lines on a plate with a shadow.
Item {
    id: view

    required property MenuModel menu
    // The room for the shadow on each side.
    readonly property real margin: shadow.margin
    readonly property real cornerRadius: 10
    readonly property real padding: 5

    width: plate.width + 2 * margin
    height: plate.height + 2 * margin

    Accessible.role: Accessible.PopupMenu
    Accessible.name: menu.title

    ShadowView {
        id: shadow

        anchors.fill: plate
        anchors.margins: -margin
        blur: 14
        verticalOffset: 4
        strength: 0.3
        cornerRadius: plate.cornerRadius
    }

    PlateView {
        id: plate

        x: view.margin
        y: view.margin
        width: lines.width + 2 * view.padding
        height: lines.natural.height + 2 * view.padding
        cornerRadius: view.cornerRadius
        fill: Appearance.isDark ? Qt.rgba(0.17, 0.17, 0.185, 0.97) : Qt.rgba(0.97, 0.97, 0.98, 0.97)
        borderWidth: 1
        borderColor: Appearance.isDark ? Qt.rgba(1, 1, 1, 0.16) : Qt.rgba(0, 0, 0, 0.12)
    }

    Column {
        id: lines

        // Computed at once, because the window is placed before anything is laid out.
        readonly property size natural: {
            let size = Qt.size(0, 0);
            for (let i = 0; i < children.length; ++i) {
                size.width = Math.max(size.width, children[i].implicitWidth);
                size.height += children[i].height;
            }
            return size;
        }

        readonly property bool haveSymbols: {
            for (const line of view.menu.lines)
                if (line.symbol !== "")
                    return true;
            return false;
        }

        x: plate.x + view.padding
        y: plate.y + view.padding
        width: Math.ceil(Math.max(170, Math.min(natural.width, 380)))

        Repeater {
            model: view.menu.lines

            MenuLine {
                // Qt 6.4 cannot bind a delegate's component, so it refers to the ids around it.
                menu: view.menu // qmllint disable unqualified
                width: lines.width // qmllint disable unqualified
                titleX: hasPicture ? 53 : lines.haveSymbols ? 34 : 12 // qmllint disable unqualified
            }
        }
    }
}
