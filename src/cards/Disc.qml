import QtQuick

// A mask for the pointer: a circle that touches the left and upper edges of an item.
QtObject {
    required property real radius

    function contains(point: point): bool {
        return Math.hypot(point.x - radius, point.y - radius) <= radius;
    }
}
