import QtQuick
import Vantle.Panel

// The actions of a capture, over the lower edge of its thumbnail.
Item {
    id: bar

    required property PanelModel panel
    required property string captureId
    required property bool isPinned
    required property bool isCopied
    property bool isShown: false
    readonly property bool hovering: hover.hovered

    width: actions.width + 2 * 6
    height: actions.height + 2 * 3
    opacity: presence.value
    visible: opacity > 0
    enabled: isShown

    transform: Translate {
        y: Appearance.reducesMotion ? 0 : (1 - presence.value) * 16
    }

    Spring {
        id: presence

        target: bar.isShown ? 1 : 0
        from: 0
        response: 0.25
        dampingFraction: 1
    }

    PlateView {
        anchors.fill: parent
        cornerRadius: height / 2
        fill: Qt.rgba(0, 0, 0, 0.55)
    }

    PressCatcher {}

    TileActions {
        id: actions

        anchors.centerIn: parent
        panel: bar.panel
        captureId: bar.captureId
        isPinned: bar.isPinned
        isCopied: bar.isCopied
        isOnDark: true
    }

    HoverHandler {
        id: hover
    }
}
