import QtQuick
import Vantle.Panel

// A smaller text that explains something.
Body {
    color: Appearance.secondary
    lineHeight: 1.1
    font.pointSize: Style.caption
}
