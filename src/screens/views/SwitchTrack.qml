import QtQuick
import Vantle.Cards
import Vantle.Panel

// The switch of a toggle.
Item {
    id: track

    required property bool isOn
    required property bool isDown
    required property bool hasFocus
    // The knob's current position, from 0 to 1.
    required property real position
    readonly property real gap: 2
    // Nothing is animated before the window is visible.
    readonly property bool moves: !Appearance.reducesMotion && Window.visibility !== Window.Hidden

    implicitWidth: Math.round(38 * Style.scale)
    implicitHeight: Math.round(22 * Style.scale)

    PlateView {
        anchors.fill: parent
        cornerRadius: height / 2
        fill: track.isOn ? Appearance.accent : Style.faint(Appearance.isDark ? 0.24 : 0.2)

        Behavior on fill {
            enabled: track.moves
            ColorAnimation { duration: 140 }
        }
    }

    Rectangle {
        x: track.gap + track.position * (track.width - width - 2 * track.gap)
        y: track.gap
        width: height
        height: track.height - 2 * track.gap
        radius: height / 2
        color: track.isDown ? "#e8e8ea" : "white"
        border.width: 1
        border.color: Qt.rgba(0, 0, 0, 0.08)

        Behavior on x {
            enabled: track.moves && !track.isDown
            NumberAnimation {
                duration: 140
                easing.type: Easing.OutCubic
            }
        }
    }

    FocusRing {
        anchors.margins: -3
        cornerRadius: (track.height + 6) / 2
        isShown: track.hasFocus
    }
}
