pragma ComponentBehavior: Bound

import QtQuick
import Vantle.Panel

// The tiles side by side, the newest at the end. A row that is wider than the card scrolls.
FocusScope {
    id: row

    required property PanelModel panel

    readonly property real nameGap: 6
    readonly property real nameHeight: panel.count >= 2 ? nameGap + tallestName : 0
    // Some scripts have tall letters, and so do the fonts of some desktops.
    property real tallestName: 14
    readonly property real overflowMargin: panel.overflows ? 6 : 0
    // The size of the row when nothing moves.
    readonly property real naturalWidth: Math.min(CardLayout.maxContentWidth, panel.contentWidth) + 2 * CardLayout.innerMargin
    readonly property real naturalHeight: CardLayout.innerMargin + panel.thumbnailHeight + nameHeight + overflowMargin
    // How far the row is scrolled, or will be when it has come to rest.
    readonly property alias position: scrolled.target
    readonly property real maximumScroll: Math.max(0, panel.contentWidth + 2 * CardLayout.innerMargin - naturalWidth)
    // Tiles that exist from the beginning do not grow into the row.
    property bool isComplete: false
    property bool isHovered: false
    // The tile whose actions are under the pointer.
    property CaptureTile tileWithHoveredActions: null
    // The position of the tile that has the keyboard, or had it last.
    property int focused: 0

    objectName: "tileRow"
    clip: panel.overflows

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Captures")

    Component.onCompleted: {
        isComplete = true;
        measureNames();
    }

    function scrollTo(position) {
        scrolled.target = Math.min(Math.max(position, 0), maximumScroll);
    }

    // Scrolls only as far as needed to show the tile.
    function reveal(tile) {
        const right = tile.tileX + tile.tileWidth + 2 * CardLayout.innerMargin - naturalWidth;
        scrollTo(Math.min(Math.max(scrolled.target, right), tile.tileX));
    }

    function measureNames() {
        let tallest = 14;
        for (let i = 0; i < tiles.count; ++i) {
            const tile = tiles.itemAt(i) as CaptureTile;
            if (tile && !tile.isLeaving) tallest = Math.max(tallest, tile.nameHeight);
        }
        tallestName = tallest;
    }

    function tileAt(position) {
        for (let i = 0; i < tiles.count; ++i) {
            const tile = tiles.itemAt(i) as CaptureTile;
            if (tile && !tile.isLeaving && tile.position === position) return tile;
        }
        return null;
    }

    // Returns the tile of a capture that is on the card, or leaving it; null if there is none.
    function tileOf(captureId) {
        for (let i = 0; i < tiles.count; ++i) {
            const tile = tiles.itemAt(i) as CaptureTile;
            if (tile && tile.captureId === captureId) return tile;
        }
        return null;
    }

    function focusTile(position) {
        const tile = tileAt(Math.min(Math.max(position, 0), panel.count - 1));
        if (!tile) return;
        tile.forceActiveFocus(Qt.TabFocusReason);
        reveal(tile);
    }

    // Returns the tile that has the keyboard, itself or in one of its buttons; null if there is
    // none.
    function focusedTile() {
        for (let position = 0; position < panel.count; ++position) {
            const tile = tileAt(position);
            if (tile && tile.activeFocus) return tile;
        }
        return null;
    }

    // Returns the tile under the pointer; null if there is none.
    function hoveredTile() {
        for (let position = 0; position < panel.count; ++position) {
            const tile = tileAt(position);
            if (tile && tile.hovering) return tile;
        }
        return null;
    }

    Connections {
        target: row.panel

        function onCountChanged() {
            if (row.panel.count === 0) return;
            row.measureNames();
            // The newest capture must be visible, whatever the user looked at before.
            if (row.panel.isPresented)
                scrolled.target = row.maximumScroll;
            else
                scrolled.jumpTo(row.maximumScroll);
            // If the tile with the keyboard goes, its neighbour gets the keyboard.
            if (row.activeFocus && !row.focusedTile()) row.focusTile(row.focused);
        }
    }

    Spring {
        id: scrolled

        Component.onCompleted: jumpTo(row.maximumScroll)
        response: 0.5
        dampingFraction: 0.85
        enabled: !Appearance.reducesMotion
    }

    Item {
        x: CardLayout.innerMargin - scrolled.value
        y: CardLayout.innerMargin

        Repeater {
            id: tiles

            model: row.panel.captures

            delegate: CaptureTile {
                id: tile

                panel: row.panel
                // The first tiles come with the card.
                animatesIn: row.isComplete && row.panel.isPresented
                nameGap: row.nameGap
                visibleLeft: scrolled.value - CardLayout.innerMargin + 4
                visibleRight: visibleLeft + row.naturalWidth - 8
                onNameHeightChanged: row.measureNames()
                onActiveFocusChanged: if (activeFocus) row.focused = position
                isUnderOtherActions: row.tileWithHoveredActions !== null && row.tileWithHoveredActions !== tile
                onIsActionsHoveredChanged: {
                    if (isActionsHovered)
                        row.tileWithHoveredActions = tile;
                    else if (row.tileWithHoveredActions === tile)
                        row.tileWithHoveredActions = null;
                }
            }
        }
    }

    ScrollIndicator {
        x: CardLayout.innerMargin
        y: parent.height - height
        width: parent.width - 2 * CardLayout.innerMargin
        isShown: row.panel.overflows && row.isHovered
        scrolled: scrolled.value
        maximumScroll: row.maximumScroll
        visibleWidth: row.naturalWidth
        onScrollTo: position => row.scrollTo(position)
    }

    WheelHandler {
        enabled: row.panel.overflows
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => {
            const angle = event.angleDelta.x !== 0 ? event.angleDelta.x : event.angleDelta.y;
            const pixels = event.pixelDelta.x !== 0 ? event.pixelDelta.x : event.pixelDelta.y;
            row.scrollTo(scrolled.target - (pixels !== 0 ? pixels : angle));
        }
    }
}
