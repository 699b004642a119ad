import QtQuick

// A step of the onboarding: a column in the middle of the scroll area.
Item {
    id: step

    default property alias content: column.data
    property alias spacing: column.spacing
    // The height of the scroll area.
    required property real room
    property real margin: 28

    height: Math.max(room, column.implicitHeight + 2 * margin)

    WindowMover {}

    Column {
        id: column

        x: 28
        y: Math.max(step.margin, (step.height - implicitHeight) / 2)
        width: step.width - 2 * x
        spacing: 20
    }
}
