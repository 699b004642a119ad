import QtQuick
import Vantle.Panel

// A smaller, explanatory text.
BodyText {
    color: Appearance.secondary
    lineHeight: 1.1
    font.pointSize: Style.caption
}
