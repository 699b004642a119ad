import QtQuick

// Says over a thumbnail that its file is gone.
TileNotice {
    text: qsTr("The file is gone")
}
