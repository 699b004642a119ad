import QtQuick
import Vantle.Panel

// Qt 6.4 cannot bind components in the loaders of a delegate, so they refer to the ids around them.
// qmllint disable unqualified

// What a tile shows over its thumbnail while it has the pointer or the keyboard: the actions, the
// close button, or the field for its new name.
Item {
    id: controls

    required property PanelModel panel
    required property string captureId
    required property bool isPinned
    required property bool isCopied
    required property bool isRenaming
    required property string changeableName
    required property string extension
    required property string refusal
    required property bool isAttended
    required property bool hasActions
    required property bool canClose
    // The visible part of the row, from the tile's left edge.
    required property real visibleLeft
    required property real visibleRight

    readonly property bool areActionsHovered: actions.item && (actions.item as HoverBar).hovering
    readonly property bool isHovered: areActionsHovered || closeHover.hovered
    // Controls are made when first needed; otherwise forty captures would have 240 buttons.
    property bool areNeeded

    Binding on areNeeded {
        value: true
        when: controls.isAttended || controls.panel.isAssisted
        restoreMode: Binding.RestoreNone
    }

    // A control at the lower edge. If the tile is narrower, it stays in the visible part of the row.
    component LowerLoader: Loader {
        x: Math.max(controls.visibleLeft, Math.min((controls.width - width) / 2, controls.visibleRight - width))
        y: controls.height - height - 6
    }

    LowerLoader {
        id: actions

        active: controls.areNeeded
        sourceComponent: HoverBar {
            panel: controls.panel
            captureId: controls.captureId
            isPinned: controls.isPinned
            isCopied: controls.isCopied
            isShown: controls.hasActions && controls.isAttended && !controls.isRenaming
        }
    }

    LowerLoader {
        z: 2
        active: controls.isRenaming
        sourceComponent: RenameField {
            panel: controls.panel
            name: controls.changeableName
            extension: controls.extension
            refusal: controls.refusal
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
            active: controls.areNeeded
            sourceComponent: CloseButton {
                isShown: controls.isAttended && controls.canClose
                onTapped: controls.panel.close(controls.captureId)
            }
        }
    }
}
