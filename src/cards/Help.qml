pragma Singleton

import QtQuick

// Finds the innermost item under the pointer that has a help text.
QtObject {
    id: help

    readonly property Item item: innermost ? innermost.item : null
    readonly property string text: innermost ? innermost.text : ""

    property var innermost: null
    property var hovered: []

    function follow(item, isHovered, text) {
        hovered = hovered.filter(entry => entry.item && entry.item !== item);
        if (isHovered)
            hovered.push({ item: item, text: text });
        innermost = hovered.reduce((least, entry) =>
            !least || area(entry.item) < area(least.item) ? entry : least, null);
    }

    function area(item) {
        return item.width * item.height;
    }
}
