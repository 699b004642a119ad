import QtQuick
import Vantle.Panel

// A capture's picture, which can be clicked, selected and dragged away.
Item {
    id: thumbnail

    required property PanelModel panel
    required property string captureId
    required property string fileName
    required property bool hasThumbnail
    required property bool isRecording
    // The size for which the picture is made. It is stretched while the tile changes its size.
    required property real pictureWidth
    required property real pictureHeight

    Image {
        anchors.fill: parent
        // One value, so that a change of both loads once. The linter takes it for a size in fractions.
        sourceSize: Qt.size(thumbnail.pictureWidth, thumbnail.pictureHeight) // qmllint disable
        source: "image://thumbnail/%1/%2x%3".arg(thumbnail.captureId).arg(thumbnail.pictureWidth).arg(thumbnail.pictureHeight)
        cache: false
    }

    Loader {
        anchors.centerIn: parent
        active: !thumbnail.hasThumbnail
        sourceComponent: Symbol {
            // Qt 6.4 cannot bind components in a delegate, so this refers to the id around it.
            name: thumbnail.isRecording ? "video.fill" : "photo" // qmllint disable unqualified
            fontSize: 22
            opacity: 0.7
        }
    }

    DragThumbnailView {
        anchors.fill: parent
        source: thumbnail.panel
        captureId: thumbnail.captureId
        fileName: thumbnail.fileName
        onClick: thumbnail.panel.open(thumbnail.captureId)
        onToggleSelect: thumbnail.panel.toggleSelect(thumbnail.captureId)
    }

    HelpHover {
        help: qsTr("Drag into any app, or click to open. ⌘-click to select.")
    }
}
