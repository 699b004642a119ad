pragma ComponentBehavior: Bound

import QtQuick
import Vantle.Panel

// The tiles side by side, the newest at the end; it scrolls when they are wider than the card.
Item {
    id: row

    required property PanelModel panel

    readonly property real innerMargin: 10
    readonly property real overflowMargin: panel.overflows ? 6 : 0
    readonly property real nameHeight: panel.count >= 2 ? nameGap + 14 : 0
    readonly property real nameGap: 6
    readonly property real farthest: Math.max(0, panel.contentWidth + 2 * innerMargin - width)
    // Tiles that are there from the beginning do not arrive.
    property bool isComplete: false
    property real scrolled: farthest

    objectName: "tileRow"
    width: Math.min(640, panel.contentWidth) + 2 * innerMargin
    height: innerMargin + panel.thumbnailHeight + nameHeight + overflowMargin
    clip: panel.overflows

    Component.onCompleted: isComplete = true

    // The newest is to be seen, whatever the user looked at before.
    onFarthestChanged: scrolled = farthest

    Behavior on scrolled {
        enabled: row.isComplete
        NumberAnimation { duration: 300; easing.type: Easing.OutCubic }
    }

    Item {
        x: row.innerMargin - row.scrolled
        y: row.innerMargin

        Repeater {
            model: row.panel.captures

            delegate: CaptureTile {
                panel: row.panel
                arrives: row.isComplete
                nameGap: row.nameGap
            }
        }
    }

    WheelHandler {
        enabled: row.panel.overflows
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => {
            const steps = event.angleDelta.x !== 0 ? event.angleDelta.x : event.angleDelta.y;
            row.scrolled = Math.min(Math.max(row.scrolled - steps, 0), row.farthest);
        }
    }
}
