import QtQuick
import Vantle.Panel

// Which step of several is seen.
Row {
    id: dots

    required property int count
    required property int current

    spacing: 8

    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("Step %1 of %2").arg(current + 1).arg(count)

    Repeater {
        model: dots.count

        Rectangle {
            required property int index

            width: 8
            height: 8
            radius: 4
            // A delegate's component cannot be bound (Qt 6.4), so the ids around it are meant.
            color: index === dots.current ? Appearance.accent // qmllint disable unqualified
                                          : Style.faint(0.2)

            Behavior on color { ColorAnimation { duration: 180 } }
        }
    }
}
