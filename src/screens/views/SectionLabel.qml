import QtQuick
import Vantle.Panel

// What the controls below it are about.
Body {
    leftPadding: Style.groupPadding
    rightPadding: Style.groupPadding
    color: Appearance.secondary
    font.weight: Font.DemiBold

    Accessible.role: Accessible.Heading
}
