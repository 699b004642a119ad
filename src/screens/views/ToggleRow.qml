import QtQuick
import QtQuick.Templates as T

// A setting that is on or off, with its name at the left and the switch at the right.
T.Switch {
    id: toggle

    property string caption
    // The stored setting. The user's change is emitted as changeRequested() and returns through
    // this property.
    required property bool isOn
    readonly property real gap: implicitIndicatorWidth + 16

    signal changeRequested(on: bool)

    width: parent ? parent.width : implicitWidth
    implicitWidth: implicitContentWidth + gap
    implicitHeight: Math.max(implicitContentHeight, implicitIndicatorHeight)
    leftPadding: mirrored ? gap : 0
    rightPadding: mirrored ? 0 : gap
    checked: isOn

    Accessible.name: text
    Accessible.description: caption
    Accessible.onPressAction: changeRequested(!isOn)
    Accessible.onToggleAction: changeRequested(!isOn)

    onToggled: {
        changeRequested(checked);
        // If the setting does not change the switch returns to its old position.
        checked = Qt.binding(() => isOn);
    }

    contentItem: RowLabels {
        title: toggle.text
        // The caption stays readable because it says why.
        titleOpacity: toggle.enabled ? 1 : Style.disabled
        caption: toggle.caption
        isSpoken: false
    }

    indicator: SwitchTrack {
        x: toggle.mirrored ? 0 : toggle.width - width
        y: (toggle.height - height) / 2
        opacity: toggle.enabled ? 1 : Style.disabled
        isOn: toggle.checked
        isDown: toggle.down
        hasFocus: toggle.visualFocus
        position: toggle.visualPosition
    }
}
