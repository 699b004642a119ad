import QtQuick
import Vantle.Menus

// The lines of one page of a menu.
Column {
    id: lines

    required property MenuModel menu
    required property int index
    required property var modelData

    readonly property size natural: {
        let size = Qt.size(0, 0);
        for (let i = 0; i < children.length; ++i) {
            size.width = Math.max(size.width, children[i].implicitWidth);
            size.height += children[i].height;
        }
        return size;
    }

    readonly property bool haveSymbols: {
        for (const line of modelData)
            if (line.symbol !== "")
                return true;
        return false;
    }

    // Pictures as large as symbols leave the lines as they are.
    readonly property bool haveIcons: {
        for (const line of modelData)
            if (line.picture !== "" && line.pictureSize.height <= 20)
                return true;
        return false;
    }

    Repeater {
        model: lines.modelData

        MenuLine {
            // Qt 6.4 cannot bind a delegate's component, so it refers to the ids around it.
            menu: lines.menu // qmllint disable unqualified
            page: lines.index // qmllint disable unqualified
            width: lines.width // qmllint disable unqualified
            iconWidth: lines.haveIcons ? 20 : lines.haveSymbols ? 16 : 0 // qmllint disable unqualified
        }
    }
}
