import QtQuick

// What lies inside a circle that touches both edges of an item: a mask for the pointer.
QtObject {
    required property real radius

    function contains(point: point): bool {
        return Math.hypot(point.x - radius, point.y - radius) <= radius;
    }
}
