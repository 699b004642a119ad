import QtQuick
import Vantle.Cards
import Vantle.Panel
import Vantle.Screens

// A new version: information about it, and what to do about it.
Rectangle {
    id: view

    required property UpdateModel update
    readonly property real margin: 24

    implicitWidth: Math.round(540 * Math.min(Style.scale, 1.6))
    implicitHeight: buttons.y + buttons.height + (buttons.height > 0 ? 20 : 4)
    color: Appearance.windowBackground

    LayoutMirroring.enabled: Style.isMirrored
    LayoutMirroring.childrenInherit: true

    Keys.onEscapePressed: update.close()
    Keys.onReturnPressed: pressDefault()
    Keys.onEnterPressed: pressDefault()

    function pressDefault() {
        if (update.defaultTitle) update.pressDefault();
    }

    Connections {
        target: view.update

        function onChanged() {
            (view.update.defaultTitle ? buttons.first : buttons.second).forceActiveFocus();
        }
    }

    WindowMover {}

    Symbol {
        id: symbol

        anchors.left: parent.left
        anchors.leftMargin: view.margin
        y: view.margin
        name: view.update.symbol
        color: view.update.isWarning ? "#f0a020" : Appearance.accent
        fontSize: 36
        strokeWidth: 1.2
    }

    Column {
        id: texts

        anchors.left: parent.left
        anchors.leftMargin: view.margin + 62
        anchors.right: parent.right
        anchors.rightMargin: view.margin
        y: view.margin
        spacing: 8

        BodyText {
            text: view.update.headline
            font.pointSize: Style.points(15)
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        ProgressBar {
            width: parent.width
            visible: view.update.isBusy
            indeterminate: view.update.progress < 0
            value: Math.max(0, view.update.progress)
            Accessible.name: view.update.headline
        }

        BodyText {
            visible: text !== ""
            text: view.update.detail
            lineHeight: 1.15
            color: Appearance.secondary
        }

        ReleaseNotes {
            width: parent.width
            visible: text !== ""
            text: view.update.notes
            spokenText: view.update.plainNotes
            onLinkActivated: address => view.update.openLink(address)
        }
    }

    UpdateButtons {
        id: buttons

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: view.margin
        anchors.rightMargin: view.margin
        y: texts.y + Math.max(texts.height, 44) + 20
        update: view.update
    }
}
