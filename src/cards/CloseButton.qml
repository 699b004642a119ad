import QtQuick
import Vantle.Panel

// The round button that takes one capture off the card.
Appearing {
    id: button

    signal tapped()

    width: 22
    height: 22
    from: 0

    PlateView {
        anchors.fill: parent
        cornerRadius: 11
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

    Press {
        id: press

        name: qsTr("Dismiss")
        radius: 13
        containmentMask: Disc { radius: 11 }
        onTapped: button.tapped()
    }
}
