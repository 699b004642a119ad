import QtQuick
import Vantle.Panel

// The button at the card's corner that takes all captures off it.
Rectangle {
    id: pill

    property bool isOffered: false

    signal tapped()

    width: label.width + 2 * 8
    height: label.height + 2 * 4
    radius: height / 2
    color: Qt.rgba(0, 0, 0, 0.6)
    border.width: 1
    border.color: Qt.rgba(1, 1, 1, 0.35)
    opacity: isOffered ? 1 : 0
    scale: isOffered ? 1 : 0.6
    visible: opacity > 0

    Behavior on opacity { NumberAnimation { duration: 140 } }
    Behavior on scale { NumberAnimation { duration: 140; easing.type: Easing.OutCubic } }

    Accessible.role: Accessible.Button
    Accessible.name: text.text
    Accessible.onPressAction: tapped()

    Row {
        id: label

        anchors.centerIn: parent
        spacing: 4

        CrossMark {
            anchors.verticalCenter: parent.verticalCenter
            width: 7
            height: 7
            lineWidth: 1.6
        }

        Text {
            id: text

            text: qsTr("Clear all")
            color: "white"
            font.pixelSize: 10
            font.weight: Font.DemiBold
        }
    }

    TapHandler {
        onTapped: pill.tapped()
    }
}
