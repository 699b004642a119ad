import QtQuick
import Vantle.Panel

// The rubber band while one is drawn.
Rectangle {
    required property PanelModel panel

    visible: panel.hasMarquee
    x: panel.marquee.x
    y: panel.marquee.y
    width: panel.marquee.width
    height: panel.marquee.height
    radius: 3
    color: Qt.alpha(Appearance.accent, 0.18)
    border.width: 1
    border.color: Qt.alpha(Appearance.accent, 0.8)
}
