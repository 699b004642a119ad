import QtQuick

// The title of a row and its caption, centred in the row's height.
Item {
    id: labels

    property alias title: title.text
    property alias titleOpacity: title.opacity
    property alias weight: title.font.weight
    property string caption
    property bool isSpoken: true

    implicitWidth: title.implicitWidth
    implicitHeight: texts.implicitHeight

    Column {
        id: texts

        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        spacing: 2

        BodyText {
            id: title

            isSpoken: labels.isSpoken
        }

        Caption {
            visible: text !== ""
            text: labels.caption
            isSpoken: labels.isSpoken
        }
    }
}
