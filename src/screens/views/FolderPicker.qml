import QtQuick
import Vantle.Cards
import Vantle.Panel
import Vantle.Screens

// The folder into which captures are saved, and a menu to change it.
Group {
    id: picker

    required property SettingsModel settings

    Item {
        width: parent.width
        height: Math.max(change.height, folder.height)

        Symbol {
            id: symbol

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: "folder.fill"
            color: Appearance.accent
            fontSize: 15 * Style.scale
        }

        Text {
            id: folder

            anchors.left: symbol.right
            anchors.leftMargin: 10
            anchors.right: change.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: picker.settings.folder
            textFormat: Text.PlainText
            // The beginning and the end of a path say more than its middle.
            elide: Text.ElideMiddle
            horizontalAlignment: Text.AlignLeft
            color: Appearance.primary
            font.pointSize: Style.body

            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        PopUpButton {
            id: change

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Change")
            enabled: picker.settings.folderObstacle === ""
            Accessible.description: picker.settings.folderObstacle
            onClicked: picker.settings.openFolderMenu(change)
        }
    }

    Caption {
        visible: text !== ""
        text: picker.settings.folderObstacle
    }
}
