import QtQuick

// Makes its parent a button for the mouse, the keyboard and assistive programs. Moving 14 points or
// more away before the release cancels a press.
MouseArea {
    id: press

    property string name
    property bool isPressed: pressed && !hasMovedAway
    property real radius: 7

    property point start
    property bool hasMovedAway: false

    signal tapped()

    anchors.fill: parent
    activeFocusOnTab: true
    preventStealing: true

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.onPressAction: tapped()

    function isFar(mouse) {
        return Math.abs(mouse.x - start.x) >= 14 || Math.abs(mouse.y - start.y) >= 14;
    }

    onPressed: mouse => {
        start = Qt.point(mouse.x, mouse.y);
        hasMovedAway = false;
    }
    onPositionChanged: mouse => hasMovedAway = isFar(mouse)
    onReleased: mouse => { if (!isFar(mouse)) tapped(); }

    Keys.onSpacePressed: tapped()
    Keys.onReturnPressed: tapped()
    Keys.onEnterPressed: tapped()

    FocusRing {
        isShown: press.activeFocus
        cornerRadius: press.radius
    }
}
