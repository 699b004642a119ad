import QtQuick
import Vantle.Panel

// A small button with a symbol.
Item {
    id: icon

    required property string symbol
    required property string help
    // The name for assistive programs.
    property string name: help
    property bool isOnDark: false
    readonly property color baseColor: isOnDark ? "white" : Appearance.isDark ? "white" : "black"
    readonly property bool hovering: hover.hovered
    readonly property bool pressed: press.isPressed
    readonly property real ink: pressed ? 0.5 : 0.9
    property string formerSymbol: symbol
    property string shownSymbol: symbol

    signal action()

    onSymbolChanged: {
        formerSymbol = shownSymbol;
        shownSymbol = symbol;
        change.jumpTo(0);
        change.target = 1;
    }

    width: 28
    height: 28

    PlateView {
        anchors.fill: parent
        cornerRadius: 7
        fill: icon.baseColor
        opacity: icon.pressed ? 0.16 : icon.hovering ? 0.08 : 0
    }

    // Fades out the former symbol while the new one fades in.
    Loader {
        anchors.centerIn: parent
        active: change.value < 1
        sourceComponent: Symbol {
            // Qt 6.4 cannot bind components in a delegate, so these refer to the ids around them.
            name: icon.formerSymbol // qmllint disable unqualified
            color: icon.baseColor // qmllint disable unqualified
            opacity: icon.ink * (1 - change.value) // qmllint disable unqualified
        }
    }

    Symbol {
        anchors.centerIn: parent
        name: icon.symbol
        color: icon.baseColor
        opacity: icon.ink * change.value
    }

    Spring {
        id: change

        from: 1
        target: 1
        response: 0.55
        dampingFraction: 1
    }

    HelpHover {
        id: hover
        help: icon.help
    }

    PressArea {
        id: press

        name: icon.name
        onTapped: {
            DebugLog.write("tap icon " + icon.symbol);
            icon.action();
        }
    }
}
