import QtQuick

// A background that moves the window when it is dragged, like a title bar.
MouseArea {
    property point start

    anchors.fill: parent
    preventStealing: true

    onPressed: mouse => start = Qt.point(mouse.x, mouse.y)
    onPositionChanged: mouse => {
        const isDrag = Math.abs(mouse.x - start.x) + Math.abs(mouse.y - start.y) > 6;
        if (isDrag) Window.window.startSystemMove();
    }
}
