pragma ComponentBehavior: Bound

import QtQuick
import Vantle.Panel

// The tiles side by side, the newest at the end; it scrolls when they are wider than the card.
Item {
    id: row

    required property PanelModel panel

    readonly property real innerMargin: 10
    readonly property real overflowMargin: panel.overflows ? 6 : 0

    objectName: "tileRow"
    width: Math.min(640, panel.contentWidth) + 2 * innerMargin
    height: innerMargin + list.contentItem.childrenRect.height + overflowMargin
    clip: panel.overflows

    function scrollTo(position: real) {
        const whole = list.contentWidth + list.leftMargin + list.rightMargin;
        const end = Math.max(0, whole - list.width);
        list.contentX = list.originX - list.leftMargin + Math.min(Math.max(position, 0), end);
    }

    ListView {
        id: list

        y: row.innerMargin
        width: row.width
        height: row.height - row.innerMargin
        orientation: ListView.Horizontal
        leftMargin: row.innerMargin
        rightMargin: row.innerMargin
        spacing: 10
        interactive: false
        // All tiles at once: their widths differ, and the row must know its whole width.
        cacheBuffer: 10000
        model: row.panel.captures

        delegate: CaptureTile {
            panel: row.panel
        }

        add: Transition {
            NumberAnimation { properties: "scale"; from: 0.7; to: 1; duration: 260; easing.type: Easing.OutCubic }
            NumberAnimation { properties: "opacity"; from: 0; to: 1; duration: 200 }
        }
        remove: Transition {
            NumberAnimation { properties: "scale"; to: 0.8; duration: 200; easing.type: Easing.OutCubic }
            NumberAnimation { properties: "opacity"; to: 0; duration: 200 }
        }
        displaced: Transition {
            NumberAnimation { properties: "x,y"; duration: 260; easing.type: Easing.OutCubic }
            // An arrival that is pushed on while it grows still ends whole.
            NumberAnimation { properties: "scale,opacity"; to: 1; duration: 200 }
        }

        onCountChanged: row.scrollTo(Infinity)
        onContentWidthChanged: row.scrollTo(Infinity)
        onWidthChanged: row.scrollTo(Infinity)
    }

    WheelHandler {
        enabled: row.panel.overflows
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => {
            const steps = event.angleDelta.x !== 0 ? event.angleDelta.x : event.angleDelta.y;
            row.scrollTo(list.contentX - list.originX + list.leftMargin - steps);
        }
    }
}
