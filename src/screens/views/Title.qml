import QtQuick

// What a step of the onboarding is about.
Body {
    horizontalAlignment: Text.AlignHCenter
    font.pointSize: Style.display
    font.weight: Font.Bold

    Accessible.role: Accessible.Heading
}
