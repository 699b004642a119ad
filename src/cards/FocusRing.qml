import QtQuick
import Vantle.Panel

// Shows where the keyboard is.
Rectangle {
    property bool isShown: false

    anchors.fill: parent
    anchors.margins: -2
    visible: isShown
    color: "transparent"
    border.width: 2
    border.color: Appearance.accent
}
