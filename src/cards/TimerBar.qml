import QtQuick
import Vantle.Panel

// The part of the countdown that is left. It hides while the pointer is over the card, but keeps its
// room: nothing may jump under a pointer that has just come.
Item {
    id: bar

    required property PanelModel panel
    // Whether the card stays where it is, and as large.
    required property bool isAtRest

    readonly property bool isShown: panel.progress < 1 && !panel.hovering
    readonly property real room: width - 2 * 16
    // In whole pixels: what nobody sees is worth no frame.
    readonly property real length: Math.round(room * panel.progress * Screen.devicePixelRatio)
                                   / Screen.devicePixelRatio
    readonly property color tint: Appearance.isDark ? "white" : "black"
    readonly property real strength: 0.18

    height: 2 + 5

    Rectangle {
        x: 16
        width: separate.isOpen ? 0 : bar.length
        height: 2
        radius: 1
        visible: bar.isShown && !separate.isOpen
        color: bar.tint
        opacity: bar.strength
    }

    SeparateBarView {
        id: separate

        x: 16
        width: bar.room
        height: 2
        isWanted: bar.isShown && bar.isAtRest
        length: bar.length
        color: Qt.alpha(bar.tint, bar.strength)
    }
}
