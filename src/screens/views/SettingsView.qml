import QtQuick
import Vantle.Panel
import Vantle.Screens

// All settings in one column.
Rectangle {
    id: view

    required property SettingsModel settings

    implicitWidth: 480
    color: Appearance.windowBackground
    focus: true

    LayoutMirroring.enabled: Style.isMirrored
    LayoutMirroring.childrenInherit: true

    Keys.onEscapePressed: Window.window.close()
    Keys.onPressed: event => area.scrollBy(event)

    ScrollArea {
        id: area

        anchors.fill: parent

        Item {
            // At least as high as the window, so that the footer is at its bottom.
            width: parent.width
            height: Math.max(area.height, column.height + footer.height + 3 * Style.padding)

            Column {
                id: column

                x: Style.padding
                y: Style.padding
                width: parent.width - 2 * x
                spacing: 8

                SectionLabel { text: qsTr("SCREENSHOTS ARE SAVED TO") }

                FolderPicker { settings: view.settings }

                Item {
                    width: 1
                    height: 4
                }

                BehaviorControls { settings: view.settings }
            }

            Item {
                id: footer

                x: Style.padding
                y: parent.height - height - Style.padding
                width: parent.width - 2 * x
                height: sample.height

                Caption {
                    width: parent.width - sample.width - 12
                    anchors.left: parent.left
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("Vantle %1").arg(view.settings.version)
                }

                PushButton {
                    id: sample

                    anchors.right: parent.right
                    text: qsTr("Test with a sample")
                    onClicked: view.settings.showSample()
                }
            }
        }
    }
}
