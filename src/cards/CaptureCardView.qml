import QtQuick
import Vantle.Panel

// The whole content of the panel: one card on glass, in the panel's corner.
FocusScope {
    id: view

    required property PanelModel panel

    readonly property real panelPadding: 14
    // The padding around the row of tiles, which has a margin of its own inside.
    readonly property real sidePadding: CardLayout.padding - CardLayout.innerMargin
    // The gap between the parts of the card, from top to bottom.
    readonly property real spacing: 10
    // The distance that the card moves in from the near edge.
    readonly property real travel: Appearance.reducesMotion ? 0 : (card.width + panelPadding) * (panel.atRight ? 1 : -1)

    // True while the pointer is over the card or the panel has the keyboard.
    readonly property bool isAttended: panel.isPresented && (hover.hovered || Window.active)

    focus: true
    onIsAttendedChanged: panel.setHovering(isAttended)

    // Called when the panel takes the keyboard.
    function focusNewest() {
        row.focusTile(panel.count - 1);
    }

    CardKeys {
        id: keys

        panel: view.panel
        row: row
    }

    Keys.enabled: panel.isPresented
    Keys.onPressed: event => keys.handle(event)

    Spring {
        id: presence

        target: view.panel.isPresented ? 1 : 0
        response: 0.5
        dampingFraction: 0.82
    }

    CardMotion {
        id: motion

        row: row
        presence: presence
        travel: view.travel
        isPresented: view.panel.isPresented
    }

    Item {
        id: card

        readonly property bool hasActions: view.panel.count === 1
        readonly property bool hasTimerBar: view.panel.progress < 1
        readonly property real actionsHeight: hasActions ? view.spacing + actions.height : 0
        readonly property real timerBarHeight: hasTimerBar ? view.spacing + timerBar.height : 0

        x: (view.panel.atRight ? view.width - width - view.panelPadding : view.panelPadding)
           + (1 - presence.value) * view.travel + motion.offset
        y: view.panel.atBottom ? view.height - height - view.panelPadding : view.panelPadding
        width: widthSpring.value
        height: heightSpring.value
        opacity: presence.value * (1 - motion.fade)
        visible: view.panel.isPresented || presence.running
        enabled: view.panel.isPresented

        ListSpring {
            id: widthSpring

            panel: view.panel
            target: row.naturalWidth + 2 * view.sidePadding
        }

        ListSpring {
            id: heightSpring

            panel: view.panel
            target: view.sidePadding + row.naturalHeight + card.actionsHeight + card.timerBarHeight + CardLayout.padding
        }

        // A card that comes back must not change from its earlier size.
        onVisibleChanged: {
            if (!visible || presence.value) return;
            widthSpring.jumpTo(widthSpring.target);
            heightSpring.jumpTo(heightSpring.target);
        }

        HoverHandler {
            id: hover
        }

        // The tiles above it have menus of their own. A handler of taps takes the first press of any
        // button on some display servers.
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.RightButton
            Accessible.ignored: true
            onClicked: mouse => {
                const there = mapToItem(null, mouse.x, mouse.y);
                view.panel.showBackgroundMenu(Qt.rect(there.x, there.y, 1, 1), false);
            }
        }

        ShadowView {
            anchors.fill: glass
            anchors.margins: -margin
            blur: 18
            verticalOffset: 8
            strength: 0.28
            cornerRadius: glass.cornerRadius
        }

        GlassBackdropView {
            id: glass

            anchors.fill: parent
            isSolid: view.panel.isPresented
            isHeld: motion.offset !== 0
            fill: view.panel.rendersPlain ? Qt.alpha(Appearance.windowBackground, 0.85)
                  : isBlurred ? Appearance.glassMaterial : Appearance.popoverMaterial
            borderWidth: view.panel.rendersPlain ? 0 : 1
            borderColor: Qt.rgba(1, 1, 1, 0.18)
        }

        TileRow {
            id: row

            x: view.sidePadding
            y: view.sidePadding
            width: card.width - 2 * view.sidePadding
            height: naturalHeight
            focus: true
            panel: view.panel
            isHovered: hover.hovered
        }

        ActionRow {
            id: actions

            anchors.horizontalCenter: parent.horizontalCenter
            y: row.y + row.height + view.spacing
            width: view.panel.contentWidth
            opacity: card.hasActions ? 1 : 0
            visible: opacity > 0
            panel: view.panel
        }

        TimerBar {
            id: timerBar

            x: view.sidePadding
            y: card.height - CardLayout.padding - height
            width: card.width - 2 * view.sidePadding
            panel: view.panel
            isAtRest: view.panel.isPresented && !presence.running && !widthSpring.running && !heightSpring.running
        }

        ClearAllPill {
            x: card.width - width + 6
            y: -8
            isShown: view.panel.hovering && view.panel.count >= 2 && view.panel.selectedCount === 0
            onTapped: {
                DebugLog.write("tap Clear all");
                view.panel.closeAll();
            }
        }

        SelectionBar {
            anchors.horizontalCenter: parent.horizontalCenter
            y: -12
            panel: view.panel
        }
    }

    MarqueeOverlay {
        panel: view.panel
    }

    HelpTag {
        id: helpTag

        avoided: card
        isInTheWay: view.panel.hasMarquee || view.panel.isDragging
    }

    // A pressed item needs no explanation any more.
    Connections {
        target: view.panel

        function onPressed() {
            helpTag.hide();
        }
    }
}
