import QtQuick

// The title of a step of the onboarding.
BodyText {
    horizontalAlignment: Text.AlignHCenter
    font.pointSize: Style.display
    font.weight: Font.Bold

    Accessible.role: Accessible.Heading
}
