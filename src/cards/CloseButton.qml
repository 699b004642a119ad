import QtQuick
import Vantle.Panel

// The round button that removes one capture from the card.
Appearing {
    id: button

    signal tapped()

    from: 0

    PlateView {
        anchors.fill: parent
        cornerRadius: height / 2
        fill: Qt.rgba(0, 0, 0, press.isPressed ? 0.8 : 0.6)
        borderWidth: 1
        borderColor: Qt.rgba(1, 1, 1, 0.4)
    }

    Symbol {
        anchors.centerIn: parent
        name: "xmark"
        fontSize: 10
        strokeWidth: 2.2
    }

    HelpHover {
        help: press.name
    }

    PressArea {
        id: press

        name: qsTr("Dismiss")
        radius: button.height / 2 + 2
        containmentMask: Disc { radius: button.height / 2 }
        onTapped: button.tapped()
    }
}
