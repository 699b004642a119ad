import QtQuick

// The presses on a tile that ask for its menu: of the right button, or a long one on a touch screen.
Item {
    id: presses

    signal menuAsked(place: point)

    anchors.fill: parent

    TapHandler {
        acceptedButtons: Qt.RightButton
        // Takes the press, so that the card's own handler does not open a second menu.
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: eventPoint => presses.menuAsked(eventPoint.position)
    }

    TapHandler {
        acceptedDevices: PointerDevice.TouchScreen
        onLongPressed: presses.menuAsked(point.position)
    }
}
