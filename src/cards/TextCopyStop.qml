import QtQuick
import Vantle.Panel

// A round button on a thumbnail whose text is being read: shows how far that is, and stops it.
Item {
    id: button

    required property real progress

    signal tapped()

    width: 40
    height: 40

    PlateView {
        anchors.fill: parent
        cornerRadius: height / 2
        fill: Qt.rgba(0, 0, 0, press.isPressed ? 0.85 : 0.7)
    }

    TextCopyRing {
        anchors.fill: parent
        anchors.margins: 4
        thickness: 2.5
        tint: "white"
        progress: button.progress
    }

    Symbol {
        anchors.centerIn: parent
        name: "xmark"
        fontSize: 11
        strokeWidth: 2
    }

    HelpHover {
        help: press.name
    }

    PressArea {
        id: press

        name: qsTr("Stop")
        radius: button.height / 2 + 2
        containmentMask: Disc { radius: button.height / 2 }
        onTapped: button.tapped()
    }
}
