import QtQuick
import Vantle.Panel

// The button at the card's corner that removes all captures from it.
Appearing {
    id: pill

    signal tapped()

    width: Math.ceil(label.width) + 2 * 8
    height: label.height + 2 * 4

    PlateView {
        anchors.fill: parent
        cornerRadius: height / 2
        fill: Qt.rgba(0, 0, 0, press.isPressed ? 0.8 : 0.6)
        borderWidth: 1
        borderColor: Qt.rgba(1, 1, 1, 0.35)
    }

    Row {
        id: label

        anchors.centerIn: parent
        spacing: 4

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "xmark"
            fontSize: 9
            strokeWidth: 2.2
        }

        Text {
            id: text

            text: qsTr("Clear all")
            color: "white"
            font.pixelSize: 10
            font.weight: Font.DemiBold
        }
    }

    PressArea {
        id: press

        name: text.text
        radius: pill.height / 2 + 2
        onTapped: pill.tapped()
    }
}
