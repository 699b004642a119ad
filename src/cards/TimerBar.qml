import QtQuick
import Vantle.Panel

// Shows the part of the countdown that is left. It hides while the pointer is over the card, but
// keeps its space so that nothing moves under the pointer.
Item {
    id: bar

    required property PanelModel panel
    // True while the card keeps its place and size.
    required property bool isAtRest

    readonly property bool isShown: panel.progress < 1 && !panel.hovering
    readonly property real room: width - 2 * 16
    // Rounded to whole pixels, because a smaller change is invisible and would still cost a frame.
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
