import QtQuick
import Vantle.Panel

// Qt 6.4 cannot bind components in the loaders of a delegate, so they refer to the ids around them.
// qmllint disable unqualified

// A capture's thumbnail with its border, its shadow, and what is said over it. After the file was
// moved to the Trash, a notice takes its place.
Item {
    id: picture

    required property PanelModel panel
    required property string captureId
    required property string fileName
    required property bool hasThumbnail
    required property bool isRecording
    required property string durationText
    required property bool isSelected
    // Why it could not be opened; empty if there is nothing to say.
    required property string openingFailure
    required property string trashNotice
    required property bool canUndoTrash
    // The size for which the thumbnail is made.
    required property real pictureWidth
    required property real pictureHeight

    readonly property bool isTrashed: trashNotice !== ""
    // Keeps the last notice while it fades out.
    property string shownNotice
    // Goes to 0 while a notice takes the place of the thumbnail.
    property real pictureOpacity: isTrashed ? 0 : 1

    Behavior on pictureOpacity { NumberAnimation { duration: 180; easing.type: Easing.OutQuad } }

    Binding on shownNotice {
        when: picture.isTrashed
        value: picture.trashNotice
        restoreMode: Binding.RestoreNone
    }

    ShadowView {
        anchors.fill: parent
        anchors.margins: -margin
        blur: 6
        verticalOffset: 2
        strength: 0.25
        cornerRadius: CardLayout.thumbnailCornerRadius
        opacity: picture.pictureOpacity
    }

    DraggableThumbnail {
        anchors.fill: parent
        opacity: picture.pictureOpacity
        enabled: !picture.isTrashed
        panel: picture.panel
        captureId: picture.captureId
        fileName: picture.fileName
        hasThumbnail: picture.hasThumbnail
        isRecording: picture.isRecording
        pictureWidth: picture.pictureWidth
        pictureHeight: picture.pictureHeight
    }

    PlateView {
        anchors.fill: parent
        cornerRadius: CardLayout.thumbnailCornerRadius
        borderWidth: 1
        borderColor: Qt.rgba(1, 1, 1, 0.25)
        opacity: picture.pictureOpacity
    }

    Loader {
        anchors.fill: parent
        opacity: 1 - picture.pictureOpacity
        active: opacity > 0
        sourceComponent: TrashNotice {
            panel: picture.panel
            captureId: picture.captureId
            text: picture.shownNotice
            canUndo: picture.canUndoTrash
        }
    }

    FadingLoader {
        anchors.fill: parent
        isShown: picture.isSelected
        sourceComponent: PlateView {
            cornerRadius: CardLayout.thumbnailCornerRadius
            borderWidth: 3
            borderColor: Appearance.accent
            fill: Qt.alpha(Appearance.accent, 0.18)
        }
    }

    Loader {
        x: 8
        y: 8
        active: picture.isRecording
        opacity: picture.pictureOpacity
        sourceComponent: DurationBadge {
            text: picture.durationText
        }
    }

    FadingNotice {
        anchors.fill: parent
        notice: picture.openingFailure
    }
}
