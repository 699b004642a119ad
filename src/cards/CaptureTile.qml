import QtQuick
import Vantle.Panel

// One capture: its thumbnail with border and shadow, and its name where several stand in a row.
Item {
    id: tile

    required property PanelModel panel
    required property string captureId
    required property string fileName
    required property real tileX
    required property real tileWidth
    required property real thumbnailHeight
    required property bool isRecording
    required property string durationText
    required property bool isSelected

    // Whether it is new in the row, and so grows into it.
    required property bool arrives
    required property real nameGap

    readonly property bool compact: panel.count >= 2

    x: tileX
    width: tileWidth
    height: thumbnailHeight + (compact ? nameGap + name.height : 0)

    Behavior on x {
        NumberAnimation { duration: 300; easing.type: Easing.OutCubic }
    }

    Component.onCompleted: if (arrives) arrival.start()

    ParallelAnimation {
        id: arrival

        NumberAnimation { target: tile; property: "scale"; from: 0.7; to: 1; duration: 300; easing.type: Easing.OutCubic }
        NumberAnimation { target: tile; property: "opacity"; from: 0; to: 1; duration: 200 }
    }

    HoverHandler {
        id: hover
    }

    ShadowView {
        x: -blur
        y: -blur + 2
        width: thumbnail.width + 2 * blur
        height: thumbnail.height + 2 * blur
        blur: 6
        strength: 0.25
        cornerRadius: thumbnail.cornerRadius
    }

    Image {
        id: thumbnail

        readonly property real cornerRadius: 12

        objectName: "thumbnail"
        width: tile.tileWidth
        height: tile.thumbnailHeight
        // One value, so that a change of both loads once. The linter takes it for a size in fractions.
        sourceSize: Qt.size(width, height) // qmllint disable
        source: "image://thumbnail/%1/%2x%3".arg(tile.captureId).arg(width).arg(height)
        cache: false

        Rectangle {
            anchors.fill: parent
            radius: thumbnail.cornerRadius
            color: "transparent"
            border.width: tile.isSelected ? 3 : 1
            border.color: tile.isSelected ? Appearance.accent : Qt.rgba(1, 1, 1, 0.25)
        }
    }

    DurationBadge {
        x: 8
        y: 8
        visible: tile.isRecording && tile.durationText !== ""
        text: tile.durationText
    }

    CloseButton {
        x: -8
        y: -8
        isOffered: hover.hovered && !tile.isSelected
        onTapped: tile.panel.close(tile.captureId)
    }

    Text {
        id: name

        y: tile.thumbnailHeight + tile.nameGap
        width: tile.tileWidth
        visible: tile.compact
        text: tile.fileName
        textFormat: Text.PlainText
        elide: Text.ElideMiddle
        maximumLineCount: 1
        horizontalAlignment: Text.AlignHCenter
        color: Appearance.secondary
        // Half pixels can only be said in typographic points, of which an inch has 72.
        font.pointSize: 10.5 * 72 / (Screen.logicalPixelDensity * 25.4)
        font.weight: Font.Medium
    }
}
