import QtQuick
import Vantle.Panel

// Something that comes and goes with a fade and, unless the user wants less motion, a scale.
Item {
    id: appearing

    property bool isOffered: false

    opacity: isOffered ? 1 : 0
    scale: isOffered || Appearance.reducesMotion ? 1 : 0.6
    visible: opacity > 0

    Behavior on opacity { NumberAnimation { duration: 140; easing.type: Easing.OutQuad } }
    Behavior on scale { NumberAnimation { duration: 180; easing.type: Easing.OutBack; easing.overshoot: 1.2 } }
}
