import QtQuick
import Vantle.Panel

// An item that comes and goes with a fade and, unless the user prefers less motion, a scale.
Item {
    id: appearing

    property bool isShown: false
    // 0 for an item that is made only when it is offered, so that its arrival is animated.
    property alias from: presence.from
    // True for an item that comes and goes with the easing of a selection instead of a spring.
    property bool isEased: false
    property real eased: isShown ? 1 : 0
    readonly property real shown: isEased ? eased : presence.value

    opacity: shown
    scale: Appearance.reducesMotion ? 1 : 0.6 + 0.4 * shown
    visible: opacity > 0
    enabled: isShown

    Behavior on eased { NumberAnimation { duration: 180; easing.type: Easing.OutQuad } }

    Spring {
        id: presence

        target: appearing.isShown ? 1 : 0
        response: 0.3
        dampingFraction: 0.7
    }
}
