import QtQuick
import Vantle.Cards
import Vantle.Panel
import Vantle.Preview

// Copies the text of the picture. Meanwhile it shows how far that is, and stops it.
TapIcon {
    id: button

    required property PreviewModel preview

    symbol: preview.isReadingText ? "xmark" : "text.viewfinder"
    help: preview.isReadingText ? qsTr("Stop") : qsTr("Copy Text")
    onAction: preview.isReadingText ? preview.stopCopyingText() : preview.copyText()

    FadingLoader {
        anchors.fill: parent
        anchors.margins: 1
        isShown: button.preview.isReadingText
        sourceComponent: TextCopyRing {
            // Qt 6.4 cannot bind components in a delegate, so these refer to the ids around them.
            tint: Appearance.accent
            progress: button.preview.textProgress // qmllint disable unqualified
        }
    }
}
