pragma Singleton

import QtQuick
import Vantle.Panel

// The sizes and colours of the screens. Text scales with the desktop's.
QtObject {
    readonly property real scale: Appearance.textScale
    // Follows the user's language or the toolkit's layout direction, a property that qmllint does
    // not know.
    readonly property bool isMirrored: Qt.locale().textDirection === Qt.RightToLeft
                                       || Qt.application.layoutDirection === Qt.RightToLeft // qmllint disable

    // Font sizes in points.
    readonly property real display: points(26)
    readonly property real title: points(17)
    readonly property real body: points(13)
    readonly property real caption: points(11)

    // Lengths. The grid is 4.
    readonly property real padding: 22
    readonly property real groupPadding: 12
    readonly property real rowPadding: 10
    readonly property real controlHeight: Math.round(28 * scale)

    // The opacity of disabled controls.
    readonly property real disabled: 0.45
    // An opaque colour.
    readonly property color disabledHandle: Appearance.isDark ? "#8e8e93" : "#f2f2f4"

    readonly property color ink: Appearance.isDark ? "white" : "black"
    readonly property color groupFill: Appearance.isDark ? Qt.rgba(1, 1, 1, 0.06) : "white"
    readonly property color hairline: faint(0.1)
    readonly property color controlFill: faint(Appearance.isDark ? 0.12 : 0.07)
    // The colour of text on the accent colour, which may be light if the user has chosen it.
    readonly property color onAccent: luminance(Appearance.accent) > 0.45 ? Qt.rgba(0, 0, 0, 0.88)
                                                                       : "white"
    readonly property color green: Appearance.isDark ? "#32d158" : "#1f9d3f"
    readonly property color orange: Appearance.isDark ? "#ffb340" : "#c66a00"

    function points(pixels) {
        return Appearance.fontPoints(pixels * scale);
    }

    // Returns the perceived brightness of a colour, from 0 to 1.
    function luminance(color) {
        return 0.2126 * color.r ** 2.2 + 0.7152 * color.g ** 2.2 + 0.0722 * color.b ** 2.2;
    }

    function faint(opacity) {
        return Qt.rgba(ink.r, ink.g, ink.b, opacity);
    }
}
