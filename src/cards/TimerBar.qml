import QtQuick
import Vantle.Panel

// The part of the countdown that is left. It hides while the pointer is over the card, but keeps its
// room: nothing may jump under a pointer that has just come.
Item {
    id: bar

    required property PanelModel panel

    height: 2 + 5

    Rectangle {
        x: 16
        width: (bar.width - 2 * 16) * bar.panel.progress
        height: 2
        radius: 1
        visible: bar.panel.progress < 1 && !bar.panel.hovering
        color: Appearance.isDark ? "white" : "black"
        opacity: 0.18
    }
}
