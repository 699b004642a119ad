import QtQuick
import QtQuick.Templates as T
import Vantle.Cards
import Vantle.Panel
import Vantle.Screens

// Sets after how many seconds the card dismisses itself.
Column {
    id: block

    required property SettingsModel settings

    width: parent ? parent.width : 0
    spacing: 4
    enabled: !settings.neverDismiss

    Item {
        width: parent.width
        opacity: block.enabled ? 1 : Style.disabled
        // The texts are placed below each other if they do not fit side by side.
        readonly property bool fits: name.implicitWidth + number.implicitWidth + 12 <= width

        height: fits ? name.height : name.height + number.height

        BodyText {
            id: name

            width: Math.min(implicitWidth, parent.width)
            anchors.left: parent.left
            text: qsTr("Otherwise dismiss after")
            isSpoken: false
        }

        BodyText {
            id: number

            width: Math.min(implicitWidth, parent.width)
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            text: block.settings.dismissAfterText
            isSpoken: false
            color: Appearance.secondary
        }
    }

    T.Slider {
        id: slider

        width: parent.width
        implicitHeight: Math.round(24 * Style.scale)
        from: block.settings.minimum
        to: block.settings.maximum
        stepSize: block.settings.step
        snapMode: T.Slider.SnapAlways
        value: block.settings.dismissAfter

        Accessible.name: qsTr("Otherwise dismiss after")
        Accessible.description: block.settings.dismissAfterText
        // The toolkit does not tell assistive programs that the slider is disabled.
        Accessible.readOnly: !enabled

        // Assistive programs set the value directly, so this handles all changes.
        onValueChanged: {
            if (value === block.settings.dismissAfter) return;
            if (enabled)
                block.settings.dismissAfter = Math.round(value);
            else
                value = Qt.binding(() => block.settings.dismissAfter);
        }
        Keys.onPressed: event => {
            const places = {
                [Qt.Key_Home]: from, [Qt.Key_End]: to,
                [Qt.Key_PageUp]: Math.round(value) + 10, [Qt.Key_PageDown]: Math.round(value) - 10
            };
            if (!(event.key in places)) return;
            block.settings.dismissAfter = Math.min(to, Math.max(from, places[event.key]));
            event.accepted = true;
        }

        background: Rectangle {
            x: slider.leftPadding
            anchors.verticalCenter: parent.verticalCenter
            width: slider.availableWidth
            height: 4
            radius: 2
            color: Style.faint(0.16)

            Rectangle {
                x: slider.mirrored ? parent.width - width : 0
                // The coloured part ends at the middle of the handle.
                width: slider.position * (parent.width - slider.handle.width)
                       + slider.handle.width / 2
                height: parent.height
                radius: parent.radius
                color: block.enabled ? Appearance.accent : Style.faint(0.16)
            }
        }

        handle: Rectangle {
            x: slider.leftPadding + slider.visualPosition * (slider.availableWidth - width)
            anchors.verticalCenter: parent.verticalCenter
            width: Math.round(18 * Style.scale)
            height: width
            radius: width / 2
            color: !block.enabled ? Style.disabledHandle : slider.pressed ? "#e8e8ea" : "white"
            border.width: 1
            border.color: Qt.rgba(0, 0, 0, block.enabled ? 0.18 : 0.26)

            FocusRing {
                anchors.margins: -3
                cornerRadius: (parent.width + 6) / 2
                isShown: slider.visualFocus
            }
        }
    }
}
