import QtQuick
import Vantle.Panel

// Shows where the keyboard is.
PlateView {
    property bool isShown: false

    anchors.fill: parent
    anchors.margins: -2
    visible: isShown
    borderWidth: 2
    borderColor: Appearance.accent
}
