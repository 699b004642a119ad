import QtQuick

// Says something over a picture for as long as there is something to say.
FadingLoader {
    id: loader

    // Empty while there is nothing to say.
    required property string notice
    // Keeps the last notice while it fades out.
    property string shownNotice

    isShown: notice !== ""
    sourceComponent: TileNotice {
        // Qt 6.4 cannot bind components in a delegate, so this refers to the id around it.
        text: loader.shownNotice // qmllint disable unqualified
    }

    Binding on shownNotice {
        when: loader.isShown
        value: loader.notice
        restoreMode: Binding.RestoreNone
    }
}
