import QtQuick
import QtQuick.Templates as T
import Vantle.Panel

// A progress bar, with an animation while the progress is unknown.
T.ProgressBar {
    id: bar

    // The animation's position, repeatedly from 0 to 1.
    property real turn: 0.5

    implicitHeight: 6

    NumberAnimation {
        target: bar
        property: "turn"
        running: bar.indeterminate && bar.visible && !Appearance.reducesMotion
        from: 0
        to: 1
        duration: 1400
        loops: Animation.Infinite
        easing.type: Easing.InOutQuad
    }

    background: Rectangle {
        radius: height / 2
        color: Style.faint(0.16)
    }

    contentItem: Item {
        clip: true

        Rectangle {
            x: !bar.indeterminate ? (bar.mirrored ? parent.width - width : 0)
                                  : bar.turn * (parent.width + width) - width
            width: parent.width * (bar.indeterminate ? 0.3 : bar.position)
            height: parent.height
            radius: height / 2
            color: Appearance.accent
        }
    }
}
