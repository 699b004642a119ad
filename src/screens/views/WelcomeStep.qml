import QtQuick
import Vantle.Panel

// The first step: what the program is for.
StepView {
    id: step

    spacing: 28

    CardIllustration { height: Math.min(300, Math.max(150, step.room * 0.36)) }

    Column {
        width: parent.width
        spacing: 10

        Title { text: qsTr("Welcome to Vantle") }

        BodyText {
            text: qsTr("Screenshots shouldn't vanish before you can use them.\nVantle keeps your latest screenshots and recordings in a glass panel in the corner until you're done with them.")
            horizontalAlignment: Text.AlignHCenter
            color: Appearance.secondary
            lineHeight: 1.25
            font.pointSize: Style.points(14)
        }
    }

    FeatureList {
        lines: [
            { symbol: "hand.draw", text: qsTr("Drag a preview straight into Slack, Mail, Figma or anywhere else") },
            { symbol: "square.grid.2x2", text: qsTr("Take several in a row and they line up side by side") },
            { symbol: "clock", text: qsTr("Stays until you dismiss it, or on a timer if you prefer") }
        ]
    }
}
