import QtQuick
import Vantle.Panel

// Lets the user type a new name of a capture's file over its thumbnail. The extension stays.
Item {
    id: field

    required property PanelModel panel
    required property string name
    required property string extension
    // Why the latest name was refused; empty if none was.
    required property string refusal

    width: 200
    height: column.height + 2 * 6

    Component.onCompleted: {
        input.forceActiveFocus(Qt.OtherFocusReason);
        input.selectAll();
    }

    PlateView {
        anchors.fill: parent
        cornerRadius: 9
        fill: Qt.rgba(0, 0, 0, 0.82)
        borderWidth: 1
        borderColor: field.refusal === "" ? Qt.rgba(1, 1, 1, 0.35) : "#ff6961"
    }

    PressCatcher {}

    Column {
        id: column

        x: 8
        y: 6
        width: field.width - 2 * x
        spacing: 4

        Row {
            width: parent.width

            TextInput {
                id: input

                width: Math.min(parent.width - extension.width, Math.max(12, contentWidth + 2))
                text: field.name
                color: "white"
                selectionColor: Appearance.accent
                selectByMouse: true
                clip: true
                font.pixelSize: 12
                onAccepted: field.panel.finishRenaming(text)

                Accessible.role: Accessible.EditableText
                Accessible.name: qsTr("New name")
                Accessible.description: field.refusal

                Keys.onEscapePressed: field.panel.cancelRenaming()
                // The card would take what the field does not need, such as Return, for its own.
                Keys.priority: Keys.AfterItem
                Keys.onPressed: event => event.accepted = true
                onActiveFocusChanged: if (!activeFocus) field.panel.cancelRenaming()
            }

            Text {
                id: extension

                text: field.extension
                textFormat: Text.PlainText
                color: Qt.rgba(1, 1, 1, 0.6)
                font.pixelSize: 12
            }
        }

        Text {
            width: parent.width
            visible: field.refusal !== ""
            text: field.refusal
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            color: "#ff9f98"
            font.pixelSize: 11
        }
    }
}
