import QtQuick
import Vantle.Panel

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
    required property string openingFailure
    required property bool isLeaving
    // The user is typing the name of its file; why the latest one was refused.
    required property bool isRenaming
    required property string changeableName
    required property string extension
    required property string refusal
    // What takes the place of the tile after its file was moved to the Trash; otherwise empty.
    required property string trashNotice
    required property bool canUndoTrash
    // The text in its picture is being copied, or a notice says what became of it.
    required property bool isReadingText
    required property real textProgress
    required property string textNotice

    // True if the tile is new in the row and must grow into it.
    required property bool animatesIn
    required property real nameGap
    // The visible part of the row, from the row's first tile.
    required property real visibleLeft
    required property real visibleRight

    readonly property bool compact: panel.count >= 2
    readonly property real nameHeight: Math.ceil(name.implicitHeight)
    readonly property bool hovering: controls.isHovered || (hover.hovered && !isUnderOtherActions)
    // True while the pointer is on another tile's actions, which extend over this one.
    property bool isUnderOtherActions: false
    readonly property bool isActionsHovered: controls.areActionsHovered
    // What the middle of the thumbnail shows of its text, in words.
    readonly property string textState: isReadingText ? qsTr("Copying text") : textNotice
    readonly property bool isTrashed: trashNotice !== ""
    readonly property bool isAttended: (hovering || activeFocus) && !isLeaving && !isTrashed
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
    Accessible.description: isTrashed ? trashNotice : textState !== "" ? textState : openingFailure !== "" ? openingFailure : isPinned ? qsTr("Pinned") : ""
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: isTrashed ? panel.undoTrash(captureId) : panel.open(captureId)
    Accessible.onToggleAction: panel.toggleSelect(captureId)

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

    // The tile whose capture the space bar shows large, also while another window has the keyboard.
    readonly property bool isHoveredCapture: hovering && isStaying && !isTrashed
    onIsHoveredCaptureChanged: panel.setTileHovered(captureId, isHoveredCapture)

    HoverHandler {
        id: hover
    }

    TileMenuPresses {
        onMenuAsked: place => tile.showMenu(place)
    }

    // Opens the menu at a place of the tile.
    function showMenu(place) {
        const there = mapToItem(null, place.x, place.y);
        panel.showMenu(captureId, Qt.rect(there.x, there.y, 1, 1), false);
    }

    function showMenuByKeyboard() {
        panel.showMenu(captureId, mapToItem(null, 0, 0, width, heightSpring.value), true);
    }

    TilePicture {
        id: picture

        width: tile.width
        height: heightSpring.value
        panel: tile.panel
        captureId: tile.captureId
        fileName: tile.fileName
        hasThumbnail: tile.hasThumbnail
        isRecording: tile.isRecording
        durationText: tile.durationText
        isSelected: tile.isSelected
        openingFailure: tile.openingFailure
        trashNotice: tile.trashNotice
        canUndoTrash: tile.canUndoTrash
        pictureWidth: tile.tileWidth
        pictureHeight: tile.thumbnailHeight
    }

    FocusRing {
        anchors.fill: picture
        anchors.margins: -4
        isShown: tile.activeFocus
        cornerRadius: CardLayout.thumbnailCornerRadius - anchors.margins
    }

    TileTextCopy {
        anchors.fill: picture
        panel: tile.panel
        captureId: tile.captureId
        isReading: tile.isReadingText
        progress: tile.textProgress
        notice: tile.textNotice
    }

    CornerMark {
        x: tile.width - width
        isSelected: tile.isSelected
        isPinned: tile.isPinned
    }

    TileControls {
        id: controls

        anchors.fill: picture
        panel: tile.panel
        captureId: tile.captureId
        isPinned: tile.isPinned
        isCopied: tile.isCopied
        isRenaming: tile.isRenaming
        changeableName: tile.changeableName
        extension: tile.extension
        refusal: tile.refusal
        isAttended: tile.isAttended
        hasActions: tile.compact && tile.panel.selectedCount === 0 && tile.textState === ""
        canClose: !tile.isSelected
        visibleLeft: tile.visibleLeft - tile.x
        visibleRight: tile.visibleRight - tile.x
    }

    TileName {
        id: name

        y: heightSpring.value + tile.nameGap
        width: tile.width
        visible: tile.compact
        text: tile.fileName
    }
}
