import QtQuick
import Vantle.Panel

// A heading for the controls below it.
BodyText {
    leftPadding: Style.groupPadding
    rightPadding: Style.groupPadding
    color: Appearance.secondary
    font.weight: Font.DemiBold

    Accessible.role: Accessible.Heading
}
