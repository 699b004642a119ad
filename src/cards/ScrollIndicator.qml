import QtQuick
import Vantle.Panel

// Shows which part of an overflowing row is visible, and can be dragged.
Item {
    id: indicator

    // How far the row is scrolled, how far it can be scrolled, and the width of its visible part.
    required property real scrolled
    required property real maximumScroll
    required property real visibleWidth
    property bool isShown: false
    readonly property real visibleFraction: visibleWidth / (visibleWidth + maximumScroll)
    readonly property real travel: width - knob.width

    signal scrollTo(position: real)

    height: 6
    opacity: isShown || mouse.pressed ? 1 : 0
    visible: opacity > 0

    Behavior on opacity { NumberAnimation { duration: 200 } }

    Rectangle {
        id: knob

        x: indicator.maximumScroll > 0 ? indicator.travel * indicator.scrolled / indicator.maximumScroll : 0
        y: 1
        width: Math.max(24, indicator.width * indicator.visibleFraction)
        height: 4
        radius: 2
        color: Appearance.isDark ? "white" : "black"
        opacity: mouse.pressed ? 0.5 : 0.3
    }

    MouseArea {
        id: mouse

        property real grip

        anchors.fill: parent
        anchors.topMargin: -2
        anchors.bottomMargin: -2
        preventStealing: true
        onPressed: event => {
            const isOnKnob = event.x >= knob.x && event.x <= knob.x + knob.width;
            grip = isOnKnob ? event.x - knob.x : knob.width / 2;
            move(event.x);
        }
        onPositionChanged: event => move(event.x)

        function move(x) {
            indicator.scrollTo((x - grip) / indicator.travel * indicator.maximumScroll);
        }
    }
}
