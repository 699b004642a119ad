import QtQuick
import Vantle.Menus
import Vantle.Panel

// A menu: the lines of its current page on a plate with a shadow. It has room for the largest page.
Item {
    id: view

    required property MenuModel menu
    // If true, the plate stays at the bottom when it changes its height.
    property bool growsUpwards: false
    // The room for the shadow on each side.
    readonly property real margin: shadow.margin
    readonly property real cornerRadius: 10
    readonly property real padding: 5
    // Computed at once, because the window is placed before anything is laid out.
    readonly property size largest: {
        let size = Qt.size(170, 0);
        for (let i = 0; i < pages.count; ++i) {
            const page = pages.itemAt(i);
            if (page)
                size = Qt.size(Math.max(size.width, Math.min(page.natural.width, 380)),
                               Math.max(size.height, page.natural.height));
        }
        return Qt.size(Math.ceil(size.width), size.height);
    }
    readonly property real pageHeight: {
        const page = pages.count > 0 ? pages.itemAt(menu.page) : null;
        return (page ? page.natural.height : 0) + 2 * padding;
    }
    readonly property alias drawnHeight: plate.height
    // Where the plate is when it has come to rest.
    readonly property rect plateFrame: Qt.rect(margin, growsUpwards ? height - margin - pageHeight : margin,
                                               largest.width + 2 * padding, pageHeight)

    width: largest.width + 2 * padding + 2 * margin
    height: largest.height + 2 * padding + 2 * margin

    Accessible.role: Accessible.PopupMenu
    Accessible.name: menu.title

    Connections {
        target: view.menu

        // Another menu does not grow out of the one before it.
        function onPagesChanged() {
            plateHeight.jumpTo(view.pageHeight);
        }
    }

    Spring {
        id: plateHeight

        target: view.pageHeight
        response: 0.28
        dampingFraction: 0.9
        enabled: !Appearance.reducesMotion
    }

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
        y: view.growsUpwards ? view.height - view.margin - height : view.margin
        width: view.largest.width + 2 * view.padding
        height: plateHeight.value
        cornerRadius: view.cornerRadius
        fill: Appearance.isDark ? Qt.rgba(0.17, 0.17, 0.185, 0.97) : Qt.rgba(0.97, 0.97, 0.98, 0.97)
        borderWidth: 1
        borderColor: Appearance.isDark ? Qt.rgba(1, 1, 1, 0.16) : Qt.rgba(0, 0, 0, 0.12)
    }

    Item {
        x: plate.x + view.padding
        y: plate.y + view.padding
        width: view.largest.width
        height: plate.height - 2 * view.padding
        clip: plateHeight.running

        Repeater {
            id: pages

            model: view.menu.pages

            MenuPage {
                // Qt 6.4 cannot bind a delegate's component, so it refers to the ids around it.
                menu: view.menu // qmllint disable unqualified
                width: view.largest.width // qmllint disable unqualified
                visible: view.menu.page === index // qmllint disable unqualified
            }
        }
    }
}
