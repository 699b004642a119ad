import QtQuick
import Vantle.Panel
import Vantle.Screens

// The onboarding: three steps, with the buttons to move between them below.
Rectangle {
    id: view

    required property OnboardingModel onboarding
    readonly property int step: onboarding.step
    // The side from which the content slides in: 1 for the next step, -1 for the one before.
    property int direction: 1

    implicitWidth: 600
    color: Appearance.windowBackground

    LayoutMirroring.enabled: Style.isMirrored
    LayoutMirroring.childrenInherit: true

    Keys.onReturnPressed: onboarding.forward()
    Keys.onEnterPressed: onboarding.forward()
    Keys.onPressed: event => area.scrollBy(event)

    Component.onCompleted: content.step = step
    onStepChanged: {
        direction = (step > content.step ? 1 : -1) * (Style.isMirrored ? -1 : 1);
        content.step = step;
        area.contentY = 0;
        arrival.jumpTo(0);
        arrival.target = 1;
        forward.forceActiveFocus();
    }

    Spring {
        id: arrival

        target: 1
        response: 0.45
        dampingFraction: 0.85
    }

    ScrollArea {
        id: area

        width: parent.width
        height: bar.y

        Loader {
            id: content
            objectName: "content"

            // The step that is shown; -1 at first.
            property int step: -1

            x: Appearance.reducesMotion ? 0 : (1 - arrival.value) * 60 * view.direction
            width: area.width
            opacity: Math.min(1, Math.max(0, arrival.value))
            sourceComponent: step < 0 ? null : [welcome, settings, done][step]
        }
    }

    // Qt 6.4 cannot bind components, so qmllint must not check the ids in them.
    Component {
        id: welcome

        WelcomeStep { room: area.height } // qmllint disable unqualified
    }

    Component {
        id: settings

        SettingsStep {
            room: area.height // qmllint disable unqualified
            onboarding: view.onboarding // qmllint disable unqualified
        }
    }

    Component {
        id: done

        DoneStep {
            room: area.height // qmllint disable unqualified
            onboarding: view.onboarding // qmllint disable unqualified
        }
    }

    Item {
        id: bar

        readonly property real margin: 20

        y: parent.height - height
        width: parent.width
        height: forward.height + 2 * margin

        WindowMover {}

        Separator {
            visible: area.contentHeight > area.height
        }

        PushButton {
            id: back

            anchors.left: parent.left
            anchors.leftMargin: bar.margin
            anchors.verticalCenter: parent.verticalCenter
            visible: view.onboarding.offersBack
            text: qsTr("Back")
            onClicked: view.onboarding.back()
        }

        PageDots {
            // The dots are in the middle unless large text needs that space.
            readonly property Item before: Style.isMirrored ? forward : back
            readonly property Item after: Style.isMirrored ? back : forward
            readonly property real least: before.visible ? before.x + before.width + 12 : 12
            readonly property real most: (after.visible ? after.x : bar.width) - 12 - width

            x: Math.max(least, Math.min(most, (bar.width - width) / 2))
            visible: least <= most
            anchors.verticalCenter: parent.verticalCenter
            count: view.onboarding.stepCount
            current: view.onboarding.step
        }

        PushButton {
            id: forward

            anchors.right: parent.right
            anchors.rightMargin: bar.margin
            anchors.verticalCenter: parent.verticalCenter
            text: view.onboarding.forwardTitle
            isDefault: true
            focus: true
            onClicked: view.onboarding.forward()
        }
    }
}
