import QtQuick
import Vantle.Panel

// What a tile shows while the text in its picture is being copied, and for a while afterwards.
Item {
    id: copying

    required property PanelModel panel
    required property string captureId
    required property bool isReading
    required property real progress
    required property string notice

    FadingLoader {
        anchors.centerIn: parent
        isShown: copying.isReading
        enabled: isShown
        sourceComponent: TextCopyStop {
            // Qt 6.4 cannot bind components in a delegate, so these refer to the ids around them.
            progress: copying.progress // qmllint disable unqualified
            onTapped: copying.panel.stopCopyingText(copying.captureId) // qmllint disable unqualified
        }
    }

    FadingNotice {
        anchors.fill: parent
        notice: copying.notice
    }
}
