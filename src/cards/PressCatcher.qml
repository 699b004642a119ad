import QtQuick

// Keeps presses between and around the buttons of a plate from what lies under the plate.
MouseArea {
    anchors.fill: parent
    acceptedButtons: Qt.AllButtons
    Accessible.ignored: true
}
