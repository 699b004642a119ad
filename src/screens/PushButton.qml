import QtQuick
import Vantle.Cards
import Vantle.Panel

// A button with a title; the default one stands out.
Item {
    id: button

    required property string title
    property bool isDefault: false
    readonly property color ink: isDefault ? "white" : Appearance.primary

    signal pressed()

    implicitWidth: Math.max(84, label.implicitWidth + 32)
    implicitHeight: 32
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: title
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: pressed()

    Keys.onSpacePressed: pressed()
    Keys.onReturnPressed: pressed()
    Keys.onEnterPressed: pressed()

    PlateView {
        anchors.fill: parent
        cornerRadius: 8
        fill: button.isDefault ? Appearance.accent
                               : Appearance.isDark ? Qt.rgba(1, 1, 1, 0.12) : Qt.rgba(0, 0, 0, 0.07)
        opacity: area.isHeld ? 0.7 : area.containsMouse ? 0.88 : 1
    }

    FocusRing {
        anchors.margins: -3
        cornerRadius: 11
        isShown: button.activeFocus
    }

    Text {
        id: label

        anchors.centerIn: parent
        text: button.title
        textFormat: Text.PlainText
        color: button.ink
        font.pointSize: Appearance.fontPoints(13)
        font.weight: button.isDefault ? Font.DemiBold : Font.Normal
    }

    MouseArea {
        id: area

        readonly property bool isHeld: pressed && containsMouse

        anchors.fill: parent
        hoverEnabled: true
        onClicked: button.pressed()
    }
}
