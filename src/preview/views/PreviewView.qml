import QtQuick
import Vantle.Cards
import Vantle.Panel
import Vantle.Preview

// The whole content of the preview's window: a large picture on glass, which grows out of its tile
// and goes back into it.
FocusScope {
    id: view

    required property PreviewModel preview

    // 0 in the tile, 1 in the middle of the screen. Under less motion only the opacity changes.
    readonly property real growth: Appearance.reducesMotion ? 1 : presence.value
    readonly property real margin: preview.margin * growth
    readonly property real barHeight: preview.barHeight * growth

    focus: true
    opacity: preview.isDragging ? 0 : 1

    function between(from, to) {
        return from + (to - from) * growth;
    }

    PreviewKeys {
        id: keys

        preview: view.preview
    }

    Keys.onPressed: event => keys.handle(event)

    Spring {
        id: presence

        from: 0
        target: view.preview.isOpen ? 1 : 0
        response: 0.38
        dampingFraction: 0.86
        onRunningChanged: if (!running && !view.preview.isOpen) view.preview.closed()
    }

    Item {
        id: plate

        x: view.between(view.preview.tile.x, view.preview.glass.x)
        y: view.between(view.preview.tile.y, view.preview.glass.y)
        width: view.between(view.preview.tile.width, view.preview.glass.width)
        height: view.between(view.preview.tile.height, view.preview.glass.height)
        opacity: Math.min(1, presence.value * (Appearance.reducesMotion ? 1 : 5))
        enabled: view.preview.isOpen

        ShadowView {
            anchors.fill: glass
            anchors.margins: -margin
            blur: 28
            verticalOffset: 12
            strength: 0.35
            cornerRadius: glass.cornerRadius
        }

        GlassBackdropView {
            id: glass

            anchors.fill: parent
            isSolid: view.preview.isOpen && !view.preview.isDragging
            wantsBlur: view.preview.isOpen
            // The card may be right behind, so without a blur little of it may shine through.
            fill: isBlurred ? Appearance.glassMaterial : Qt.alpha(Appearance.popoverMaterial, 0.96)
            borderWidth: 1
            borderColor: Qt.rgba(1, 1, 1, 0.18)
        }

        PressCatcher {}

        PreviewPicture {
            id: picture

            x: view.margin
            y: view.margin
            width: plate.width - 2 * view.margin
            height: plate.height - view.margin - view.barHeight
            preview: view.preview
            growth: view.growth
        }

        StepButton {
            x: picture.x + 8
            anchors.verticalCenter: picture.verticalCenter
            symbol: "chevron.left"
            name: qsTr("Previous capture")
            isShown: hover.hovered && view.preview.hasPrevious
            onTapped: view.preview.step(-1)
        }

        StepButton {
            x: picture.x + picture.width - width - 8
            anchors.verticalCenter: picture.verticalCenter
            symbol: "chevron.right"
            name: qsTr("Next capture")
            isShown: hover.hovered && view.preview.hasNext
            onTapped: view.preview.step(1)
        }

        FadingNotice {
            x: picture.x
            y: picture.y + picture.height - height
            width: picture.width
            height: Math.min(64, picture.height)
            notice: view.preview.textNotice
            visible: view.growth > 0.5
        }

        PreviewBar {
            x: view.preview.margin + 6
            y: picture.y + picture.height
            width: plate.width - 2 * x
            height: view.preview.barHeight
            opacity: Math.max(0, view.growth * 2 - 1)
            visible: opacity > 0
            preview: view.preview
        }

        HoverHandler {
            id: hover
        }
    }

    HelpTag {
        avoided: plate
        isInTheWay: view.preview.isDragging
    }
}
