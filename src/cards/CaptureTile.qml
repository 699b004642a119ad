import QtQuick
import Vantle.Panel

// Qt 6.4 cannot bind components in the loaders of a delegate, so they refer to the ids around them.
// qmllint disable unqualified

// One capture: its thumbnail with border and shadow, its marks and controls, and its name if there
// are several captures.
FocusScope {
    id: tile

    required property PanelModel panel
    required property string captureId
    required property string fileName
    required property int position
    required property real tileX
    required property real tileWidth
    required property real thumbnailHeight
    required property bool hasThumbnail
    required property bool isRecording
    required property string durationText
    required property bool isSelected
    required property bool isPinned
    required property bool isCopied
    required property bool isMissing
    required property bool isLeaving
    // The user is typing the name of its file; why the latest one was refused.
    required property bool isRenaming
    required property string changeableName
    required property string extension
    required property string refusal
    // What takes the place of the tile after its file was moved to the Trash; otherwise empty.
    required property string trashNotice
    required property bool canUndoTrash

    // True if the tile is new in the row and must grow into it.
    required property bool animatesIn
    required property real nameGap
    // The visible part of the row, from the row's first tile.
    required property real visibleLeft
    required property real visibleRight

    // Controls are made when first needed; otherwise forty captures would have 240 buttons.
    property bool hasControls
    readonly property bool compact: panel.count >= 2
    readonly property real nameHeight: Math.ceil(name.implicitHeight)
    readonly property bool hovering: bar.isHovered || closeHover.hovered || (hover.hovered && !isUnderOtherActions)
    // True while the pointer is on another tile's actions, which extend over this one.
    property bool isUnderOtherActions: false
    readonly property bool isActionsHovered: bar.isHovered
    readonly property bool isTrashed: trashNotice !== ""
    readonly property bool isAttended: (hovering || activeFocus) && !isLeaving && !isTrashed
    // Keeps the last notice while it fades out.
    property string shownNotice
    // Goes to 0 while a notice takes the place of the thumbnail.
    property real pictureOpacity: isTrashed ? 0 : 1

    // How far the tile is above or below its place, because the fingers move it.
    readonly property alias shift: shift
    readonly property real shiftFade: Math.min(0.7, Math.abs(shift.value) / 120)

    x: left.value
    y: Appearance.reducesMotion ? 0 : shift.value
    z: isAttended ? 1 : isLeaving ? -1 : 0
    width: widthSpring.value
    height: heightSpring.value + (compact ? nameGap + name.height : 0)
    opacity: presence.value * (1 - shiftFade)
    scale: size.value
    activeFocusOnTab: true
    enabled: !isLeaving

    Accessible.role: Accessible.ListItem
    Accessible.name: isRecording && durationText !== "" ? qsTr("%1, recording, %2").arg(fileName).arg(durationText) : fileName
    Accessible.description: isTrashed ? trashNotice : isMissing ? qsTr("The file is gone") : isPinned ? qsTr("Pinned") : ""
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: isTrashed ? panel.undoTrash(captureId) : panel.open(captureId)
    Accessible.onToggleAction: panel.toggleSelect(captureId)

    Behavior on pictureOpacity { NumberAnimation { duration: 180; easing.type: Easing.OutQuad } }

    ListSpring { id: left; panel: tile.panel; target: tile.tileX }
    ListSpring { id: widthSpring; panel: tile.panel; target: tile.tileWidth }
    ListSpring { id: heightSpring; panel: tile.panel; target: tile.thumbnailHeight }
    ListSpring {
        id: size

        panel: tile.panel
        from: tile.animatesIn ? 0.7 : 1
        target: tile.isLeaving ? 0.8 : 1
    }
    Spring {
        id: presence

        from: tile.animatesIn ? 0 : 1
        target: tile.isLeaving ? 0 : 1
        response: tile.panel.listResponse
        dampingFraction: 1
        onRunningChanged: {
            if (!running && tile.isLeaving)
                tile.panel.forget(tile.captureId);
        }
    }

    Spring {
        id: shift

        response: 0.4
        dampingFraction: 0.8
    }

    // A tile that comes back before it has gone is not at its place.
    readonly property bool isStaying: panel.isPresented && !isLeaving
    onIsStayingChanged: if (isStaying) shift.target = 0

    HoverHandler {
        id: hover
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        // Takes the press, so that the card's own handler does not open a second menu.
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: eventPoint => tile.showMenu(eventPoint.position)
    }

    TapHandler {
        acceptedDevices: PointerDevice.TouchScreen
        onLongPressed: tile.showMenu(point.position)
    }

    // Opens the menu at a place of the tile.
    function showMenu(place) {
        const there = mapToItem(null, place.x, place.y);
        panel.showMenu(captureId, Qt.rect(there.x, there.y, 1, 1), false);
    }

    function showMenuByKeyboard() {
        panel.showMenu(captureId, mapToItem(null, 0, 0, width, heightSpring.value), true);
    }

    ShadowView {
        anchors.fill: thumbnail
        anchors.margins: -margin
        blur: 6
        verticalOffset: 2
        strength: 0.25
        cornerRadius: CardLayout.thumbnailCornerRadius
        opacity: tile.pictureOpacity
    }

    DraggableThumbnail {
        id: thumbnail

        opacity: tile.pictureOpacity
        enabled: !tile.isTrashed
        width: tile.width
        height: heightSpring.value
        panel: tile.panel
        captureId: tile.captureId
        fileName: tile.fileName
        hasThumbnail: tile.hasThumbnail
        isRecording: tile.isRecording
        pictureWidth: tile.tileWidth
        pictureHeight: tile.thumbnailHeight
    }

    PlateView {
        anchors.fill: thumbnail
        cornerRadius: CardLayout.thumbnailCornerRadius
        borderWidth: 1
        borderColor: Qt.rgba(1, 1, 1, 0.25)
        opacity: tile.pictureOpacity
    }

    Loader {
        anchors.fill: thumbnail
        opacity: 1 - tile.pictureOpacity
        active: opacity > 0
        sourceComponent: TrashNotice {
            panel: tile.panel
            captureId: tile.captureId
            text: tile.shownNotice
            canUndo: tile.canUndoTrash
        }
    }

    Loader {
        anchors.fill: thumbnail
        opacity: tile.isSelected ? 1 : 0
        active: opacity > 0

        Behavior on opacity { NumberAnimation { duration: 180; easing.type: Easing.OutQuad } }

        sourceComponent: PlateView {
            cornerRadius: CardLayout.thumbnailCornerRadius
            borderWidth: 3
            borderColor: Appearance.accent
            fill: Qt.alpha(Appearance.accent, 0.18)
        }
    }

    FocusRing {
        anchors.fill: thumbnail
        anchors.margins: -4
        isShown: tile.activeFocus
        cornerRadius: CardLayout.thumbnailCornerRadius - anchors.margins
    }

    Loader {
        x: 8
        y: 8
        active: tile.isRecording
        opacity: tile.pictureOpacity
        sourceComponent: DurationBadge {
            text: tile.durationText
        }
    }

    Loader {
        anchors.fill: thumbnail
        opacity: tile.isMissing ? 1 : 0
        active: opacity > 0
        sourceComponent: MissingNotice {}

        Behavior on opacity { NumberAnimation { duration: 180; easing.type: Easing.OutQuad } }
    }

    CornerMark {
        x: tile.width - width
        isSelected: tile.isSelected
        isPinned: tile.isPinned
    }

    Loader {
        id: bar

        readonly property bool isHovered: item && (item as HoverBar).hovering
        readonly property real natural: (tile.width - width) / 2

        // If a tile is narrower than its actions, they stay in the visible part of the row.
        x: Math.max(tile.visibleLeft - tile.x, Math.min(natural, tile.visibleRight - tile.x - width))
        y: heightSpring.value - height - 6
        active: tile.hasControls
        sourceComponent: HoverBar {
            panel: tile.panel
            captureId: tile.captureId
            isPinned: tile.isPinned
            isCopied: tile.isCopied
            isShown: tile.compact && tile.isAttended && tile.panel.selectedCount === 0 && !tile.isRenaming
        }
    }

    Loader {
        x: Math.max(tile.visibleLeft - tile.x, Math.min((tile.width - width) / 2, tile.visibleRight - tile.x - width))
        y: heightSpring.value - height - 6
        z: 2
        active: tile.isRenaming
        sourceComponent: RenameField {
            panel: tile.panel
            name: tile.changeableName
            extension: tile.extension
            refusal: tile.refusal
        }
    }

    // The close button extends beyond the tile. A pointer in its circle counts as a pointer on the
    // tile, even before the button exists.
    Item {
        x: -8
        y: -8
        width: 22
        height: 22
        containmentMask: Disc { radius: 11 }

        HoverHandler {
            id: closeHover
        }

        Loader {
            anchors.fill: parent
            active: tile.hasControls
            sourceComponent: CloseButton {
                isShown: tile.isAttended && !tile.isSelected
                onTapped: tile.panel.close(tile.captureId)
            }
        }
    }

    Binding on shownNotice {
        when: tile.isTrashed
        value: tile.trashNotice
        restoreMode: Binding.RestoreNone
    }

    Binding {
        target: tile
        property: "hasControls"
        value: true
        when: tile.isAttended || tile.panel.isAssisted
        restoreMode: Binding.RestoreNone
    }

    TileName {
        id: name

        y: heightSpring.value + tile.nameGap
        width: tile.width
        visible: tile.compact
        text: tile.fileName
    }
}
