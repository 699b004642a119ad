import QtQuick
import Vantle.Panel
import Vantle.Cards
import Vantle.Preview

// The picture in its area: it can be zoomed, moved if it is larger than the area, and otherwise
// dragged into other programs.
Item {
    id: area

    required property PreviewModel preview
    // 0 while the picture is in its tile, 1 when it is in the middle of the screen.
    required property real growth

    readonly property real scaleInTile: Math.min(width / preview.pictureSize.width, height / preview.pictureSize.height)
    readonly property real pictureScale: growth >= 1 ? 1 : scaleInTile + (1 - scaleInTile) * growth
    readonly property bool isAtRest: growth === 1

    clip: true

    Accessible.role: Accessible.Graphic
    Accessible.name: preview.fileName
    Accessible.description: preview.details

    function fromMiddle(x, y) {
        return Qt.point(x - width / 2, y - height / 2);
    }

    // Real pixels are sharp only on whole pixels of the screen.
    function onPixel(place) {
        return isAtRest ? Math.round(place * Screen.devicePixelRatio) / Screen.devicePixelRatio : place;
    }

    Item {
        id: picture

        width: area.preview.pictureSize.width * area.pictureScale
        height: area.preview.pictureSize.height * area.pictureScale
        x: area.onPixel((area.width - width) / 2 + area.preview.pictureCentre.x * area.pictureScale)
        y: area.onPixel((area.height - height) / 2 + area.preview.pictureCentre.y * area.pictureScale)

        // The thumbnail stands until the sharp picture is there.
        Image {
            anchors.fill: parent
            source: area.preview.thumbnail
            visible: sharp.status !== Image.Ready
            cache: false
        }

        Image {
            id: sharp

            anchors.fill: parent
            source: area.preview.picture
            cache: false
            // Large pixels are meant to be seen.
            smooth: !area.preview.canMove || width < 2 * sourceSize.width
        }

        DragThumbnailView {
            anchors.fill: parent
            enabled: !area.preview.canMove
            // The linter does not know what a type of another module is derived from.
            source: area.preview // qmllint disable
            captureId: area.preview.captureId
            fileName: area.preview.fileName
            onDoubleClick: place => {
                const there = mapToItem(area, place.x, place.y);
                area.preview.toggleRealPixels(area.fromMiddle(there.x, there.y));
            }
        }
    }

    MouseArea {
        property point last

        anchors.fill: parent
        enabled: area.preview.canMove
        cursorShape: pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor
        onPressed: mouse => last = Qt.point(mouse.x, mouse.y)
        onPositionChanged: mouse => {
            area.preview.moveBy(mouse.x - last.x, mouse.y - last.y);
            last = Qt.point(mouse.x, mouse.y);
        }
        onDoubleClicked: mouse => area.preview.toggleRealPixels(area.fromMiddle(mouse.x, mouse.y))
    }

    // A handler of wheels would be told of one direction only.
    MouseArea {
        id: scroll

        // How far the fingers have moved since the last step. A gesture makes one step.
        property real swiped: 0

        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        onWheel: event => {
            const x = event.pixelDelta.x !== 0 ? event.pixelDelta.x : event.angleDelta.x / 2;
            const y = event.pixelDelta.y !== 0 ? event.pixelDelta.y : event.angleDelta.y / 2;
            if (event.modifiers & Qt.ControlModifier)
                area.preview.zoomBy(Math.pow(1.0015, event.angleDelta.y), area.fromMiddle(event.x, event.y));
            else if (area.preview.canMove)
                area.preview.moveBy(x, y);
            else
                swipe(x);
        }

        function swipe(x) {
            const before = Math.abs(swiped);
            swiped += x;
            rest.restart();
            if (before < 60 && Math.abs(swiped) >= 60)
                area.preview.step(swiped > 0 ? -1 : 1);
        }
    }

    Timer {
        id: rest

        interval: 250
        onTriggered: scroll.swiped = 0
    }

    PinchHandler {
        id: pinch

        property real zoomed: 1

        target: null
        onActiveChanged: zoomed = 1
        onActiveScaleChanged: {
            if (!active) return;
            const factor = activeScale / zoomed;
            zoomed = activeScale;
            area.preview.zoomBy(factor, area.fromMiddle(centroid.position.x, centroid.position.y));
        }
    }

    Loader {
        anchors.centerIn: parent
        active: area.preview.thumbnail === "" && area.preview.picture === ""
        sourceComponent: Column {
            spacing: 10

            Symbol {
                anchors.horizontalCenter: parent.horizontalCenter
                name: "photo"
                fontSize: 34
                color: Appearance.primary
                opacity: 0.6
            }

            Text {
                text: qsTr("This file cannot be shown")
                visible: area.preview.cannotBeDrawn // qmllint disable unqualified
                color: Appearance.secondary
                font.pixelSize: 13
            }
        }
    }

    StepButton {
        anchors.centerIn: parent
        symbol: "play.fill"
        name: qsTr("Play")
        size: 64
        isShown: area.preview.isRecording && area.growth > 0.5
        onTapped: area.preview.open()
    }
}
