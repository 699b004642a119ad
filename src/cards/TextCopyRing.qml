import QtQuick
import Vantle.Panel

// Shows how much of a picture is read.
RingView {
    id: ring

    // From 0 to 1.
    required property real progress
    required property color tint

    thickness: 2
    color: tint
    trackColor: Qt.alpha(tint, 0.25)
    // The first dot shows where the ring begins.
    fraction: Math.max(0.01, filling.value)

    Spring {
        id: filling

        from: 0
        target: ring.progress
        response: 0.4
        dampingFraction: 1
        enabled: !Appearance.reducesMotion
    }
}
