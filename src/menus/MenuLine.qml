import QtQuick
import Vantle.Cards
import Vantle.Menus
import Vantle.Panel

// A line of a menu: an action, the way to another page, a label, or a separator between groups.
Item {
    id: line

    required property MenuModel menu
    required property int page
    required property int index
    required property var modelData
    // The room for a symbol or a small picture before the title; 0 if no line of the page has one.
    required property real iconWidth

    readonly property bool isSeparator: modelData.isSeparator
    readonly property bool hasPicture: modelData.picture !== ""
    // A large picture makes its line higher.
    readonly property bool hasLargePicture: hasPicture && modelData.pictureSize.height > 20
    readonly property bool isCurrent: menu.page === page && menu.current === index
    readonly property real titleX: hasLargePicture ? 53 : iconWidth > 0 ? 18 + iconWidth : 12
    readonly property color ink: isCurrent ? "white" : Appearance.primary
    readonly property real shortcutWidth: modelData.hasPage ? 30
                                          : shortcut.text === "" ? 0 : shortcut.implicitWidth + 28

    implicitWidth: isSeparator ? 0 : titleX + title.implicitWidth + shortcutWidth + 14
    height: isSeparator ? 9 : hasLargePicture ? 32 : 28

    Accessible.role: isSeparator ? Accessible.Separator : Accessible.MenuItem
    Accessible.name: modelData.title
    Accessible.description: modelData.isBack ? qsTr("Back") : modelData.hasPage ? qsTr("Submenu") : ""
    Accessible.focusable: !isSeparator && modelData.isEnabled
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
        x: 9 + (line.iconWidth - width) / 2
        anchors.verticalCenter: parent.verticalCenter
        active: line.modelData.symbol !== ""
        sourceComponent: Symbol {
            // Qt 6.4 cannot bind components in a delegate, so these refer to the id around them.
            name: line.modelData.symbol // qmllint disable unqualified
            color: line.ink // qmllint disable unqualified
        }
    }

    Image {
        x: 9
        anchors.verticalCenter: parent.verticalCenter
        visible: line.hasPicture
        source: line.modelData.picture
        sourceSize: line.modelData.pictureSize
    }

    Text {
        id: title

        x: line.titleX
        width: Math.min(implicitWidth, line.width - x - line.shortcutWidth - 10)
        anchors.verticalCenter: parent.verticalCenter
        text: line.modelData.title
        textFormat: Text.PlainText
        // The names of screenshots differ at their ends.
        elide: line.hasLargePicture ? Text.ElideMiddle : Text.ElideRight
        color: line.ink
        opacity: line.modelData.isEnabled ? 1 : 0.5
        font.pointSize: Appearance.fontPoints(line.modelData.isEnabled ? 13 : 12)
        font.weight: line.modelData.isEnabled && !line.modelData.isBack ? Font.Normal : Font.DemiBold
    }

    Text {
        id: shortcut

        anchors.right: line.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        text: line.modelData.shortcut
        textFormat: Text.PlainText
        color: line.ink
        opacity: 0.55
        font.pointSize: Appearance.fontPoints(13)
    }

    Loader {
        anchors.right: line.right
        anchors.rightMargin: 7
        anchors.verticalCenter: parent.verticalCenter
        active: line.modelData.hasPage
        sourceComponent: Symbol {
            name: "chevron.right"
            color: line.ink // qmllint disable unqualified
            opacity: 0.55
        }
    }

    MouseArea {
        anchors.fill: parent
        enabled: !line.isSeparator && line.modelData.isEnabled
        hoverEnabled: true
        onEntered: line.menu.current = line.index
        onExited: if (line.isCurrent) line.menu.current = -1
        onReleased: mouse => { if (containsMouse) line.menu.choose(line.index); }
    }
}
