import QtQuick
import Vantle.Panel

// Takes the place of a thumbnail after its file was moved to the Trash, and offers to undo that.
Item {
    id: notice

    required property PanelModel panel
    required property string captureId
    required property string text
    required property bool canUndo

    function undo() {
        if (canUndo) panel.undoTrash(captureId);
    }

    PlateView {
        anchors.fill: parent
        cornerRadius: CardLayout.thumbnailCornerRadius
        fill: Appearance.isDark ? Qt.rgba(1, 1, 1, 0.08) : Qt.rgba(0, 0, 0, 0.06)
    }

    PressCatcher {}

    Column {
        anchors.centerIn: parent
        spacing: 8

        Text {
            id: label

            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(implicitWidth, notice.width - 12)
            text: notice.text
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: Appearance.primary
            font.pixelSize: 11
            font.weight: Font.DemiBold
        }

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.ceil(undo.implicitWidth) + 2 * 10
            height: undo.implicitHeight + 2 * 5
            visible: notice.canUndo

            PlateView {
                anchors.fill: parent
                cornerRadius: height / 2
                fill: press.isPressed ? Qt.darker(Appearance.accent, 1.2) : Appearance.accent
            }

            Text {
                id: undo

                anchors.centerIn: parent
                text: qsTr("Undo")
                color: "white"
                font.pixelSize: 11
                font.weight: Font.DemiBold
            }

            PressArea {
                id: press

                name: undo.text
                radius: parent.height / 2 + 2
                onTapped: notice.undo()
            }
        }
    }
}
