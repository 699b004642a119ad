import QtQuick
import Vantle.Panel

// The round button that takes one capture off the card.
Rectangle {
    id: button

    property bool isOffered: false

    signal tapped()

    width: 22
    height: 22
    radius: 11
    color: Qt.rgba(0, 0, 0, 0.6)
    border.width: 1
    border.color: Qt.rgba(1, 1, 1, 0.4)
    opacity: isOffered ? 1 : 0
    scale: isOffered ? 1 : 0.6
    visible: opacity > 0

    Behavior on opacity { NumberAnimation { duration: 120 } }
    Behavior on scale { NumberAnimation { duration: 120; easing.type: Easing.OutCubic } }

    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Dismiss")
    Accessible.onPressAction: tapped()

    CrossMark {
        anchors.centerIn: parent
        width: 8
        height: 8
    }

    TapHandler {
        onTapped: button.tapped()
    }
}
