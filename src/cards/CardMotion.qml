import QtQuick
import Vantle.Panel

// How fingers on a touchpad, or a flick of the pointer, move the card and its tiles.
Item {
    id: motion

    required property TileRow row
    // The spring with which the card comes and goes, and the way that it takes.
    required property Spring presence
    required property real travel
    required property bool isPresented

    readonly property bool isShown: isPresented || presence.running || presence.value > 0
    // How far the card is beside its place.
    readonly property real offset: Appearance.reducesMotion ? 0 : shift.value
    // Who prefers less motion sees the card fade instead of moving.
    readonly property real fade: Appearance.reducesMotion ? Math.min(0.7, Math.abs(shift.value) / 120) : 0

    // A card that left by a swipe is at its place when it comes again.
    onIsShownChanged: if (!isShown) shift.jumpTo(0)
    onIsPresentedChanged: if (isPresented && isShown) shift.target = 0

    Spring {
        id: shift

        response: 0.4
        dampingFraction: 0.8
    }

    CardSwipe {
        rowPosition: motion.row.position
        maximumRowPosition: motion.row.maximumScroll
        onRowScrolled: offset => motion.row.scrollTo(motion.row.position - offset)
        onCardMoved: offset => shift.jumpTo(offset)
        onCardReleased: velocity => shift.launch(0, velocity)
        onCardThrown: velocity => {
            // The card goes on with the speed of the fingers.
            if (motion.isPresented)
                shift.launch(0, velocity);
            else if (motion.travel !== 0)
                motion.presence.launch(0, -velocity / motion.travel);
        }
        onTileMoved: (captureId, offset) => motion.row.tileOf(captureId)?.shift.jumpTo(offset)
        onTileReleased: (captureId, velocity) => motion.row.tileOf(captureId)?.shift.launch(0, velocity)
        onTileThrown: (captureId, offset, velocity) => {
            const tile = motion.row.tileOf(captureId);
            // A notice stays.
            tile?.shift.launch(tile.isStaying ? 0 : offset, velocity);
        }
    }
}
