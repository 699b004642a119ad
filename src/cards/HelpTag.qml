import QtQuick
import Vantle.Panel

// Shows the help text of the item under the pointer, after the pointer has rested there.
PlateView {
    id: tag

    // The area that the tag must not cover if it describes a whole thumbnail.
    required property Item avoided
    // True while the tag would cover something that the user looks at.
    property bool isInTheWay: false
    readonly property Item subject: Help.item && Help.item.visible && !isInTheWay ? Help.item : null
    property bool isDue: false
    property point place

    width: Math.ceil(Math.min(label.implicitWidth + 2 * 7, 320))
    height: label.height + 2 * 3
    cornerRadius: 5
    fill: Appearance.isDark ? Qt.rgba(0.27, 0.27, 0.29, 0.97) : Qt.rgba(0.13, 0.13, 0.15, 0.92)
    x: Math.round(Math.max(4, Math.min(place.x - width / 2, parent.width - width - 4)))
    y: place.y
    opacity: subject && isDue ? 1 : 0
    visible: opacity > 0

    Behavior on opacity { NumberAnimation { duration: 120 } }

    function hide() {
        isDue = false;
        delay.stop();
    }

    onSubjectChanged: {
        isDue = false;
        delay.restart();
    }

    function settle() {
        if (!subject) return;
        label.text = Help.text;
        const frame = subject.mapToItem(parent, 0, 0, subject.width, subject.height);
        const kept = subject instanceof DraggableThumbnail ? Qt.rect(0, avoided.y - 12, 0, avoided.height + 12) : frame;
        const above = kept.y - height - 6;
        place = Qt.point(frame.x + frame.width / 2, above >= 4 ? above : kept.y + kept.height + 6);
        isDue = true;
    }

    Timer {
        id: delay

        interval: 500
        running: tag.subject !== null
        onTriggered: tag.settle()
    }

    Text {
        id: label

        anchors.centerIn: parent
        width: tag.width - 2 * 7
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
        color: "white"
        font.pixelSize: 10
    }
}
