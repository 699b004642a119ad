import QtQuick
import Vantle.Cards
import Vantle.Panel

// A round button on the picture.
Appearing {
    id: button

    required property string symbol
    required property string name
    property real size: 36

    signal tapped()

    width: size
    height: size
    from: 0

    PlateView {
        anchors.fill: parent
        cornerRadius: height / 2
        fill: Qt.rgba(0, 0, 0, press.isPressed ? 0.8 : 0.55)
        borderWidth: 1
        borderColor: Qt.rgba(1, 1, 1, 0.35)
    }

    Symbol {
        anchors.centerIn: parent
        name: button.symbol
        fontSize: button.size * 0.4
    }

    HelpHover {
        help: button.name
    }

    PressArea {
        id: press

        name: button.name
        radius: button.height / 2 + 2
        containmentMask: Disc { radius: button.height / 2 }
        onTapped: button.tapped()
    }
}
