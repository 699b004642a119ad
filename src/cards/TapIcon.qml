import QtQuick
import Vantle.Panel

// A small button that is a symbol.
Item {
    id: icon

    required property PanelModel panel
    required property string symbol
    required property string help
    property bool isOnDark: false
    readonly property color baseColor: isOnDark ? "white" : Appearance.isDark ? "white" : "black"
    readonly property bool hovering: hover.hovered
    readonly property bool pressed: press.isPressed

    signal action()

    width: 28
    height: 28

    PlateView {
        anchors.fill: parent
        cornerRadius: 7
        fill: icon.baseColor
        opacity: icon.pressed ? 0.16 : icon.hovering ? 0.08 : 0
    }

    Symbol {
        anchors.centerIn: parent
        name: icon.symbol
        color: icon.baseColor
        opacity: icon.pressed ? 0.5 : 0.9
    }

    HelpHover {
        id: hover
        help: icon.help
    }

    Press {
        id: press

        name: icon.help
        onTapped: {
            icon.panel.log("tap icon " + icon.symbol);
            icon.action();
        }
    }
}
