import QtQuick

// A thin line between two rows of a group.
Rectangle {
    width: parent ? parent.width : 0
    height: 1
    color: Style.hairline
}
