import QtQuick
import Vantle.Panel

// Shows which of several steps is current.
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
            // Qt 6.4 cannot bind a delegate's component, so qmllint must not check the ids in it.
            color: index === dots.current ? Appearance.accent // qmllint disable unqualified
                                          : Style.faint(0.2)

            Behavior on color { ColorAnimation { duration: 180 } }
        }
    }
}
