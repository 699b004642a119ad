import QtQuick

// Reports the help text of its parent while the pointer is over it.
HoverHandler {
    id: hover

    required property string help

    onHoveredChanged: Help.follow(parent, hovered, help)
    onHelpChanged: if (hovered) Help.follow(parent, hovered, help)
}
