import QtQuick
import Vantle.Cards
import Vantle.Menus
import Vantle.Panel

// A line of a menu: what can be chosen, or a rule between two groups of that.
Item {
    id: line

    required property MenuModel menu
    required property int index
    required property var modelData

    readonly property bool isSeparator: modelData.isSeparator
    readonly property bool isCurrent: menu.current === index
    readonly property color ink: isCurrent ? "white" : Appearance.primary

    implicitWidth: isSeparator ? 0 : title.x + title.implicitWidth + 14
    height: isSeparator ? 9 : 28

    Accessible.role: isSeparator ? Accessible.Separator : Accessible.MenuItem
    Accessible.name: modelData.title
    Accessible.focusable: !isSeparator
    Accessible.focused: isCurrent
    Accessible.onPressAction: menu.choose(index)

    Rectangle {
        visible: line.isSeparator
        anchors.verticalCenter: parent.verticalCenter
        x: 8
        width: line.width - 2 * x
        height: 1
        color: Appearance.isDark ? Qt.rgba(1, 1, 1, 0.14) : Qt.rgba(0, 0, 0, 0.12)
    }

    PlateView {
        anchors.fill: parent
        visible: line.isCurrent
        cornerRadius: 6
        fill: Appearance.accent
    }

    Loader {
        x: 9
        anchors.verticalCenter: parent.verticalCenter
        active: line.modelData.symbol !== ""
        sourceComponent: Symbol {
            // A delegate cannot make bound components (Qt 6.4), so the id around this one is meant.
            name: line.modelData.symbol // qmllint disable unqualified
            color: line.ink // qmllint disable unqualified
        }
    }

    Text {
        id: title

        x: 34
        width: Math.min(implicitWidth, line.width - x - 10)
        anchors.verticalCenter: parent.verticalCenter
        text: line.modelData.title
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: line.ink
        font.pointSize: Appearance.fontPoints(13)
    }

    MouseArea {
        anchors.fill: parent
        enabled: !line.isSeparator
        hoverEnabled: true
        onEntered: line.menu.current = line.index
        onExited: if (line.isCurrent) line.menu.current = -1
        onReleased: mouse => { if (containsMouse) line.menu.choose(line.index); }
    }
}
