import QtQuick
import Vantle.Panel

// A picture of a desktop with the card in its corner, drawn to fill the item.
Item {
    id: picture

    // All lengths are given for a picture that is 200 high.
    readonly property real unit: height / 200

    width: parent ? parent.width : 0

    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        radius: 14
        gradient: Gradient {
            GradientStop { position: 0; color: Appearance.isDark ? "#2b3258" : "#a9c4f5" }
            GradientStop { position: 1; color: Appearance.isDark ? "#5a3f6e" : "#f0c9dc" }
        }
    }

    // A window of another program.
    Rectangle {
        id: other

        x: 30 * picture.unit
        y: 26 * picture.unit
        width: parent.width * 0.52
        height: 130 * picture.unit
        radius: 9
        color: Appearance.isDark ? Qt.rgba(0.09, 0.1, 0.14, 0.72) : Qt.rgba(1, 1, 1, 0.78)

        Row {
            x: 11 * picture.unit
            y: x
            spacing: 5 * picture.unit

            Repeater {
                model: 3

                Rectangle {
                    // Qt 6.4 cannot bind a delegate's component, so qmllint must not check the ids
                    // in it.
                    width: 7 * picture.unit // qmllint disable unqualified
                    height: width
                    radius: width / 2
                    color: Style.faint(0.22)
                }
            }
        }

        Column {
            x: 14 * picture.unit
            y: 36 * picture.unit
            spacing: 11 * picture.unit

            Repeater {
                model: [0.78, 0.62, 0.7, 0.4]

                Rectangle {
                    required property real modelData

                    width: other.width * modelData // qmllint disable unqualified
                    height: 7 * picture.unit // qmllint disable unqualified
                    radius: height / 2
                    color: Style.faint(0.13)
                }
            }
        }
    }

    ShadowView {
        anchors.fill: card
        anchors.margins: -margin
        blur: 14
        verticalOffset: 5
        strength: 0.35
        cornerRadius: card.cornerRadius
    }

    PlateView {
        id: card

        x: parent.width - width - 14 * picture.unit
        y: parent.height - height - 14 * picture.unit
        width: thumbnails.width + 20 * picture.unit
        height: thumbnails.height + 20 * picture.unit
        cornerRadius: 14 * picture.unit
        fill: Appearance.popoverMaterial
        borderWidth: 1
        borderColor: Qt.rgba(1, 1, 1, Appearance.isDark ? 0.2 : 0.7)

        Row {
            id: thumbnails

            x: 10 * picture.unit
            y: x
            spacing: 8 * picture.unit

            Rectangle {
                width: 96 * picture.unit
                height: 60 * picture.unit
                radius: 7 * picture.unit
                antialiasing: true
                gradient: Gradient {
                    GradientStop { position: 0; color: "#5c73fa" }
                    GradientStop { position: 1; color: "#db66cc" }
                }
            }

            Rectangle {
                width: 45 * picture.unit
                height: 60 * picture.unit
                radius: 7 * picture.unit
                antialiasing: true
                gradient: Gradient {
                    GradientStop { position: 0; color: "#fa9e4d" }
                    GradientStop { position: 1; color: "#f24d80" }
                }
            }
        }
    }
}
