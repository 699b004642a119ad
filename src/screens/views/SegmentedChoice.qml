import QtQuick
import QtQuick.Templates as T
import Vantle.Cards
import Vantle.Panel

// A choice of one out of a few options, side by side, or below each other if they do not fit.
Item {
    id: choice

    required property string name
    required property var titles
    required property int current
    readonly property bool fits: widest.width + 24 <= width / titles.length
    readonly property real rowHeight: Math.round(28 * Style.scale)

    signal changeRequested(index: int)

    // Gives the keyboard to the option with that number, if there is one.
    function goTo(index) {
        const option = options.itemAt(index);
        if (option) option.forceActiveFocus(Qt.TabFocusReason);
    }

    width: parent ? parent.width : 0
    implicitHeight: grid.height + 4

    Accessible.role: Accessible.Grouping
    Accessible.name: name

    // Measures the longest title in the heaviest weight.
    Column {
        id: widest

        visible: false

        Repeater {
            model: choice.titles

            Text {
                required property string modelData

                text: modelData
                font.pointSize: Style.body
                font.weight: Font.DemiBold
            }
        }
    }

    PlateView {
        anchors.fill: parent
        cornerRadius: 8
        fill: Style.controlFill
    }

    Grid {
        id: grid

        x: 2
        y: 2
        columns: choice.fits ? choice.titles.length : 1

        Repeater {
            id: options

            model: choice.titles

            T.RadioButton {
                id: option

                required property int index
                required property string modelData

                // Qt 6.4 cannot bind a delegate's component, so qmllint must not check the ids in
                // it.
                width: (choice.width - 4) / grid.columns // qmllint disable unqualified
                implicitHeight: Math.max(choice.rowHeight, implicitContentHeight + 8) // qmllint disable unqualified
                text: modelData
                checked: index === choice.current // qmllint disable unqualified
                autoExclusive: false

                Accessible.name: text
                Accessible.checked: checked
                Accessible.onPressAction: choice.changeRequested(index) // qmllint disable unqualified
                Accessible.onToggleAction: choice.changeRequested(index) // qmllint disable unqualified

                onClicked: {
                    checked = Qt.binding(() => index === choice.current); // qmllint disable unqualified
                    choice.changeRequested(index); // qmllint disable unqualified
                }
                Keys.onUpPressed: choice.goTo(index - 1) // qmllint disable unqualified
                Keys.onDownPressed: choice.goTo(index + 1) // qmllint disable unqualified
                Keys.onLeftPressed: choice.goTo(index + (mirrored ? 1 : -1)) // qmllint disable unqualified
                Keys.onRightPressed: choice.goTo(index + (mirrored ? -1 : 1)) // qmllint disable unqualified

                background: Item {
                    PlateView {
                        anchors.fill: parent
                        visible: option.checked
                        cornerRadius: 6
                        fill: Appearance.isDark ? Qt.rgba(1, 1, 1, 0.2) : "white"
                        borderWidth: 1
                        borderColor: Style.hairline
                    }

                    FocusRing {
                        cornerRadius: 8
                        isShown: option.visualFocus
                    }
                }

                contentItem: Text {
                    text: option.text
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    color: Appearance.primary
                    font.pointSize: Style.body
                    font.weight: option.checked ? Font.DemiBold : Font.Normal
                }
            }
        }
    }
}
