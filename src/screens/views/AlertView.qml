import QtQuick
import Vantle.Cards
import Vantle.Panel
import Vantle.Screens

// A message with its buttons below it, the default button at the right.
Rectangle {
    id: view

    required property AlertModel alert
    readonly property real margin: 24
    readonly property real symbolSide: 44

    width: 460
    height: buttons.y + buttons.height + 20
    color: Appearance.windowBackground

    Accessible.role: Accessible.AlertMessage
    Accessible.name: alert.messageText
    Accessible.description: alert.informativeText

    Symbol {
        x: view.margin
        y: view.margin
        name: view.alert.isWarning ? "exclamationmark.triangle" : "photo"
        color: view.alert.isWarning ? "#f0a020" : Appearance.accent
        fontSize: 36
        strokeWidth: 1.2
    }

    Column {
        id: texts

        x: view.margin + view.symbolSide + 18
        y: view.margin
        width: view.width - x - view.margin
        spacing: 8

        Text {
            width: parent.width
            text: view.alert.messageText
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            color: Appearance.primary
            font.pointSize: Style.points(15)
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        Text {
            width: parent.width
            text: view.alert.informativeText
            textFormat: Text.PlainText
            // Wraps anywhere if necessary, because a path may have no spaces.
            wrapMode: Text.Wrap
            lineHeight: 1.15
            color: Appearance.secondary
            font.pointSize: Style.body
            Accessible.ignored: true
        }
    }

    Row {
        id: buttons

        // The first button is at the end of the line.
        layoutDirection: Qt.RightToLeft
        x: view.margin
        y: texts.y + Math.max(texts.height, view.symbolSide) + 22
        width: view.width - 2 * x
        spacing: 10

        Repeater {
            model: view.alert.buttons

            PushButton {
                id: button

                required property int index
                required property string modelData

                text: modelData
                isDefault: index === 0
                focus: index === 0
                onClicked: view.alert.answered(index) // qmllint disable unqualified
            }
        }
    }
}
