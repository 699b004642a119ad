import QtQuick
import Vantle.Panel

// Rows that belong together, on one plate.
Item {
    id: group

    default property alias rows: rows.data
    property alias spacing: rows.spacing

    width: parent ? parent.width : 0
    implicitHeight: rows.implicitHeight + 2 * Style.groupPadding

    PlateView {
        anchors.fill: parent
        cornerRadius: 10
        fill: Style.groupFill
        borderWidth: 1
        borderColor: Style.hairline
    }

    Column {
        id: rows

        x: Style.groupPadding
        y: Style.groupPadding
        width: group.width - 2 * x
        spacing: Style.rowPadding
    }
}
