import QtQuick
import Vantle.Panel
import Vantle.Screens

// The settings, with the recommended ones already applied.
StepView {
    id: step

    required property OnboardingModel onboarding

    spacing: 12
    margin: 15

    Component.onCompleted: onboarding.access.check()

    Column {
        width: parent.width
        spacing: 10

        Title { text: qsTr("Set up Vantle") }

        Item {
            width: parent.width
            height: badge.height

            PlateView {
                id: badge

                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(note.implicitWidth + 24, parent.width)
                height: note.height + 10
                cornerRadius: Math.min(height / 2, 14 * Style.scale)
                fill: Qt.rgba(Appearance.accent.r, Appearance.accent.g, Appearance.accent.b, 0.16)

                Caption {
                    id: note

                    anchors.centerIn: parent
                    width: Math.min(implicitWidth, badge.parent.width - 24)
                    horizontalAlignment: Text.AlignHCenter
                    text: qsTr("Recommended settings are already selected")
                    color: Appearance.primary
                    lineHeight: 1
                    font.weight: Font.Medium
                }
            }
        }
    }

    FolderAccessRow { access: step.onboarding.access }

    BehaviorControls { settings: step.onboarding.settings }
}
