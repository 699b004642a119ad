import QtQuick
import Vantle.Cards
import Vantle.Panel
import Vantle.Screens

// The last step: what the user has chosen, and what comes next.
StepView {
    id: step

    required property OnboardingModel onboarding

    spacing: 28

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: "checkmark.circle.fill"
        color: Style.green
        fontSize: 60
    }

    Column {
        width: parent.width
        spacing: 10

        Title { text: qsTr("You're all set") }

        BodyText {
            text: step.onboarding.outlook
            horizontalAlignment: Text.AlignHCenter
            color: Appearance.secondary
            lineHeight: 1.25
            font.pointSize: Style.points(14)
        }

        BodyText {
            text: step.onboarding.trayAdvice
            visible: step.onboarding.trayAdvice !== ""
            horizontalAlignment: Text.AlignHCenter
            color: Appearance.secondary
            lineHeight: 1.25
            font.pointSize: Style.points(14)
        }
    }

    FeatureList { lines: step.onboarding.summary }

    PushButton {
        anchors.horizontalCenter: parent.horizontalCenter
        text: qsTr("Show me a sample")
        onClicked: step.onboarding.settings.showSample()
    }
}
