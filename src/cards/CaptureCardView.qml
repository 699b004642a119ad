import QtQuick
import Vantle.Panel

// The whole content of the panel: one card in the panel's corner, on glass.
Item {
    id: view

    required property PanelModel panel

    readonly property real panelPadding: 14
    readonly property real cornerRadius: 22
    readonly property bool isPresented: panel.visible && panel.count > 0
    // How far the card moves in from the near edge.
    readonly property real travel: (card.width + panelPadding) * (panel.atRight ? 1 : -1)

    Item {
        id: card

        property real presence: view.isPresented ? 1 : 0

        x: (view.panel.atRight ? view.width - width - view.panelPadding : view.panelPadding)
           + (1 - presence) * view.travel
        y: view.panel.atBottom ? view.height - height - view.panelPadding : view.panelPadding
        width: content.width
        height: content.height
        opacity: presence
        visible: presence > 0

        Behavior on presence {
            NumberAnimation { duration: 320; easing.type: Easing.OutCubic }
        }

        HoverHandler {
            onHoveredChanged: view.panel.setHovering(hovered)
        }

        ShadowView {
            x: -blur
            y: -blur + 8
            width: card.width + 2 * blur
            height: card.height + 2 * blur
            visible: !view.panel.rendersPlain
            blur: 18
            strength: 0.28
            cornerRadius: view.cornerRadius
        }

        GlassBackdropView {
            anchors.fill: parent
            cornerRadius: view.cornerRadius
            plain: view.panel.rendersPlain
        }

        Column {
            id: content

            leftPadding: 2
            rightPadding: 2
            topPadding: 2
            bottomPadding: 12
            spacing: 10

            TileRow {
                panel: view.panel
            }

            ActionRow {
                visible: view.panel.count === 1
                panel: view.panel
                width: view.panel.contentWidth
                anchors.horizontalCenter: parent.horizontalCenter
            }

            TimerBar {
                visible: view.panel.progress < 1 && !view.panel.hovering
                progress: view.panel.progress
                availableWidth: parent.width - 2 * 2
            }
        }

        ClearAllPill {
            x: card.width - width + 6
            y: -8
            isOffered: view.panel.hovering && view.panel.count >= 2 && !view.panel.hasSelection
            onTapped: view.panel.closeAll()
        }
    }
}
