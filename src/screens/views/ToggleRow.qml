import QtQuick
import QtQuick.Templates as T

// A setting that is on or off: what it is at the left, the switch at the right.
T.Switch {
    id: toggle

    property string caption
    // The setting; what the user wants instead is asked for, and comes back as the setting.
    required property bool isOn
    readonly property real gap: implicitIndicatorWidth + 16

    signal wanted(on: bool)

    width: parent ? parent.width : implicitWidth
    implicitWidth: implicitContentWidth + gap
    implicitHeight: Math.max(implicitContentHeight, implicitIndicatorHeight)
    leftPadding: mirrored ? gap : 0
    rightPadding: mirrored ? 0 : gap
    checked: isOn

    Accessible.name: text
    Accessible.description: caption
    Accessible.onPressAction: wanted(!isOn)
    Accessible.onToggleAction: wanted(!isOn)

    onToggled: {
        wanted(checked);
        // A setting that stays as it was takes the switch back.
        checked = Qt.binding(() => isOn);
    }

    contentItem: Labels {
        title: toggle.text
        // The caption says why, and stays readable.
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
