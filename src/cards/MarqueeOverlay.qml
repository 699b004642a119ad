import QtQuick
import Vantle.Panel

// The rubber band while one is drawn.
Rectangle {
    required property PanelModel panel
    readonly property color accent: Appearance.accent

    visible: panel.hasMarquee
    x: panel.marquee.x
    y: panel.marquee.y
    width: panel.marquee.width
    height: panel.marquee.height
    radius: 3
    color: Qt.rgba(accent.r, accent.g, accent.b, 0.18)
    border.width: 1
    border.color: Qt.rgba(accent.r, accent.g, accent.b, 0.8)
}
