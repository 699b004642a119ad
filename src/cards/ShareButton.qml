import QtQuick

// The button that opens the share menu, which points at it.
TapIcon {
    id: button

    signal share(anchor: rect)

    symbol: "square.and.arrow.up"
    name: qsTr("Share")
    onAction: share(mapToItem(null, 0, 0, width, height))
}
