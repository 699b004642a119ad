import QtQuick
import Vantle.Panel

// Something that comes and goes with a fade and, unless the user wants less motion, a scale.
Item {
    id: appearing

    property bool isOffered: false
    // 0 for what is made only when it is offered, and yet is to be seen coming.
    property alias from: presence.from

    opacity: presence.value
    scale: Appearance.reducesMotion ? 1 : 0.6 + 0.4 * presence.value
    visible: opacity > 0
    enabled: isOffered

    Spring {
        id: presence

        target: appearing.isOffered ? 1 : 0
        response: 0.3
        dampingFraction: 0.7
    }
}
