import QtQuick
import QtQuick.Templates as T
import Vantle.Cards
import Vantle.Panel

// A button that opens a menu.
T.Button {
    id: button

    property string symbol: "chevron.down"

    readonly property real margin: 12
    readonly property real farMargin: margin + implicitIndicatorWidth + 8

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Style.controlHeight
    leftPadding: mirrored ? farMargin : margin
    rightPadding: mirrored ? margin : farMargin
    opacity: enabled ? 1 : Style.disabled

    Accessible.role: Accessible.ButtonMenu
    Accessible.name: text
    Accessible.onPressAction: clicked()

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onDownPressed: clicked()

    background: Item {
        PlateView {
            anchors.fill: parent
            cornerRadius: 8
            fill: Style.controlFill
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
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        color: Appearance.primary
        font.pointSize: Style.body
    }

    indicator: Symbol {
        x: button.mirrored ? button.margin : button.width - width - button.margin
        y: (button.height - height) / 2
        name: button.symbol
        color: Appearance.primary
        fontSize: 8 * Style.scale
        strokeWidth: 2
        opacity: 0.7
    }
}
