import QtQuick
import Vantle.Panel

// The ring around the item that has the keyboard.
PlateView {
    property bool isShown: false

    anchors.fill: parent
    anchors.margins: -2
    visible: isShown
    borderWidth: 2
    borderColor: Appearance.accent
}
