import QtQuick
import Vantle.Screens

// The settings for captures, for the panel and for the program itself.
Column {
    id: controls

    required property SettingsModel settings

    width: parent ? parent.width : 0
    spacing: 8

    SectionLabel { text: qsTr("Captures") }

    Group {
        ToggleRow {
            text: qsTr("Keep captures until dismissed (recommended)")
            isOn: controls.settings.neverDismiss
            onChangeRequested: on => controls.settings.neverDismiss = on
        }

        Caption { text: qsTr("Pin a capture to keep it past the timer.") }

        DismissSlider { settings: controls.settings }

        Separator {}

        RowLabels {
            width: parent.width
            title: qsTr("After I use a capture")
            caption: qsTr("Using = dragging, opening, copying, sharing or revealing.")
        }

        SegmentedChoice {
            name: qsTr("After I use a capture")
            titles: [qsTr("Remove it from Vantle"), qsTr("Keep it in Vantle")]
            current: controls.settings.removeAfterUse ? 0 : 1
            onChangeRequested: index => controls.settings.removeAfterUse = index === 0
        }

        Separator {}

        ToggleRow {
            text: qsTr("Move the file to the Trash after I use it")
            caption: qsTr("After dragging or copying. Recoverable from the Trash.")
            isOn: controls.settings.deleteAfterUse
            onChangeRequested: on => controls.settings.deleteAfterUse = on
        }

        Separator {}

        ToggleRow {
            text: qsTr("Also show screen recordings")
            caption: controls.settings.recordingsPlace
            isOn: controls.settings.showRecordings
            onChangeRequested: on => controls.settings.showRecordings = on
        }

        Separator {}

        ToggleRow {
            text: qsTr("Copy screenshot to clipboard automatically")
            isOn: controls.settings.copyOnCapture
            onChangeRequested: on => controls.settings.copyOnCapture = on
        }
    }

    Item {
        width: 1
        height: 4
    }

    SectionLabel { text: qsTr("Panel & app") }

    Group {
        Item {
            readonly property bool fits: name.implicitWidth + corner.implicitWidth + 12 <= width

            width: parent.width
            height: fits ? Math.max(name.height, corner.height) : name.height + corner.height + 4

            BodyText {
                id: name

                width: Math.min(implicitWidth, parent.width)
                anchors.left: parent.left
                y: parent.fits ? (parent.height - height) / 2 : 0
                text: qsTr("Show panel in")
                isSpoken: false
            }

            PopUpButton {
                id: corner

                width: Math.min(implicitWidth, parent.width)
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                text: controls.settings.corner
                symbol: "chevron.up.chevron.down"
                Accessible.name: qsTr("Show panel in")
                Accessible.description: text
                onClicked: controls.settings.openCornerMenu(corner)
            }
        }

        Separator {}

        ToggleRow {
            text: qsTr("Hide the built-in macOS thumbnail")
            caption: enabled
                     ? qsTr("Recommended. Captures reach Vantle instantly instead of after Apple's preview.")
                     : controls.settings.thumbnailObstacle
            enabled: controls.settings.thumbnailObstacle === ""
            isOn: controls.settings.hideSystemThumbnail
            onChangeRequested: on => controls.settings.hideSystemThumbnail = on
        }

        Separator {}

        ToggleRow {
            text: qsTr("Open Vantle at login")
            isOn: controls.settings.launchAtLogin
            onChangeRequested: on => controls.settings.launchAtLogin = on
        }

        Separator {}

        ToggleRow {
            text: qsTr("Also show Vantle in the Dock")
            caption: enabled ? qsTr("Useful if the menu bar icon is hidden under the notch.")
                             : controls.settings.dockObstacle
            enabled: controls.settings.dockObstacle === ""
            isOn: controls.settings.showInDock
            onChangeRequested: on => controls.settings.showInDock = on
        }
    }
}
