import QtQuick
import Vantle.Panel

// The part of the countdown that is left.
Item {
    id: bar

    property real progress: 1
    property real availableWidth: 0

    width: availableWidth
    height: 2 + 5

    Rectangle {
        x: 16
        width: (bar.availableWidth - 2 * 16) * bar.progress
        height: 2
        radius: 1
        color: Appearance.primary
        opacity: 0.18
    }
}
