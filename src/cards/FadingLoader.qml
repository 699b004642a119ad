import QtQuick

// Makes what it shows when that is first needed, and unloads it after it has faded out.
Loader {
    property bool isShown: false

    opacity: isShown ? 1 : 0
    active: opacity > 0

    Behavior on opacity { NumberAnimation { duration: 180; easing.type: Easing.OutQuad } }
}
