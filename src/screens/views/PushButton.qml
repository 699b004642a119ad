import QtQuick
import QtQuick.Templates as T
import Vantle.Cards
import Vantle.Panel

// A button with a title; the default button is highlighted.
T.Button {
    id: button

    property bool isDefault: false

    implicitWidth: Math.max(84, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.round(32 * Style.scale)
    leftPadding: 16
    rightPadding: 16

    Accessible.name: text
    Accessible.defaultButton: isDefault
    Accessible.onPressAction: clicked()

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Item {
        PlateView {
            anchors.fill: parent
            cornerRadius: 8
            fill: button.isDefault ? Appearance.accent : Style.controlFill
            opacity: button.down ? 0.7 : button.hovered ? 0.88 : 1
        }

        FocusRing {
            anchors.margins: -3
            cornerRadius: 11
            isShown: button.visualFocus
        }
    }

    contentItem: Text {
        text: button.text
        textFormat: Text.PlainText
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        color: button.isDefault ? Style.onAccent : Appearance.primary
        font.pointSize: Style.body
        font.weight: button.isDefault ? Font.DemiBold : Font.Normal
    }
}
