import QtQuick
import Vantle.Panel

// The release notes of a version: as high as their text, but no higher than `room`.
Item {
    id: notes
    objectName: "notes"

    property string text
    property string spokenText
    property real room: Math.round(240 * Math.min(Style.scale, 1.6))

    // Headings are slightly larger than the text, lists begin at its edge, links have our colour.
    readonly property string looks: `<style>
        h1, h2, h3, h4 { font-size: ${Math.round(14 * Style.scale)}px; font-weight: 600;
                         margin-top: 4px; margin-bottom: 4px }
        p, ul, ol { margin-top: 4px; margin-bottom: 4px }
        ul, ol { -qt-list-indent: 0; margin-left: ${Math.round(14 * Style.scale)}px }
        li { margin-top: 2px }
        a { color: ${Appearance.accent} }
    </style>`

    signal linkActivated(string address)

    implicitHeight: visible ? Math.min(room, content.height + 2 * Style.groupPadding) : 0

    PlateView {
        anchors.fill: parent
        cornerRadius: 10
        fill: Style.groupFill
        borderWidth: 1
        borderColor: Style.hairline
    }

    ScrollArea {
        id: area

        anchors.fill: parent
        anchors.margins: 1
        activeFocusOnTab: contentHeight > height
        Keys.onPressed: event => scrollBy(event)

        BodyText {
            id: content

            x: Style.groupPadding
            y: Style.groupPadding
            width: area.width - 2 * x
            // The text was sanitized before, and nothing that it refers to is fetched.
            textFormat: Text.RichText
            text: notes.looks + notes.text
            Accessible.name: notes.spokenText
            lineHeight: 1.1
            bottomPadding: 2
            onLinkActivated: address => notes.linkActivated(address)

            HoverHandler {
                cursorShape: content.hoveredLink ? Qt.PointingHandCursor : Qt.ArrowCursor
            }
        }
    }
}
