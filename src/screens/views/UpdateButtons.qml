import QtQuick
import Vantle.Screens

// The buttons for an update: in a row, or below each other if they do not fit.
Item {
    id: buttons

    required property UpdateModel update
    readonly property Item first: forward
    readonly property Item second: leave
    readonly property real gap: 10
    readonly property int count: Number(forward.visible) + Number(leave.visible) + Number(skip.visible)
    readonly property bool fits: roomFor(forward) + roomFor(leave) + roomFor(skip) <= width + gap
    readonly property real step: forward.height + gap

    height: count === 0 ? 0 : fits ? forward.height : count * step - gap

    function roomFor(button) {
        return button.visible ? button.implicitWidth + gap : 0;
    }

    PushButton {
        id: forward

        anchors.right: parent.right
        width: buttons.fits ? implicitWidth : parent.width
        visible: text !== ""
        text: buttons.update.defaultTitle
        isDefault: true
        focus: true
        onClicked: buttons.update.pressDefault()
    }

    PushButton {
        id: leave

        anchors.right: parent.right
        anchors.rightMargin: buttons.fits && forward.visible ? forward.width + buttons.gap : 0
        y: buttons.fits || !forward.visible ? 0 : buttons.step
        width: buttons.fits ? implicitWidth : parent.width
        visible: text !== ""
        text: buttons.update.closeTitle
        onClicked: buttons.update.close()
    }

    PushButton {
        id: skip

        anchors.left: parent.left
        y: buttons.fits ? 0 : 2 * buttons.step
        width: buttons.fits ? implicitWidth : parent.width
        visible: text !== ""
        text: buttons.update.skipTitle
        onClicked: buttons.update.skip()
    }
}
