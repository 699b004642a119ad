import QtQuick

// Keeps presses on a plate from what lies under it, between its buttons and around them.
MouseArea {
    anchors.fill: parent
    acceptedButtons: Qt.AllButtons
    Accessible.ignored: true
}
