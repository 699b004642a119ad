import QtQuick

// Tells what there is to say about its parent while the pointer is over it.
HoverHandler {
    id: hover

    required property string help

    onHoveredChanged: Help.follow(parent, hovered, help)
}
