pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit

/*! A grid with as many equal columns as fit. The cells of a row are as high as its highest. Rows
    and columns are `spacing` apart. (columnSpacing is no help: unset, it reads as −1.) */
Grid {
    id: root

    required property real minimumColumnWidth
    property alias model: cells.model
    property alias delegate: cells.delegate
    /*! Whether columns are whole points wide, for their edges to be drawn alike, instead of filling
        the width to its last fraction. */
    property bool wholePoints: false
    readonly property real columnWidth: {
        const width = (root.width - (root.columns - 1) * root.spacing) / root.columns;
        return root.wholePoints ? Math.floor(width) : width;
    }
    /*! What the widest cell would like to have; 0 without cells. */
    readonly property real widestCell: {
        let widest = 0;
        for (let i = 0; i < cells.count; ++i)
            widest = Math.max(widest, cells.itemAt(i)?.implicitWidth ?? 0);
        return widest;
    }
    readonly property alias count: cells.count

    function rowHeight(index: int): real {
        const first = index - index % root.columns;
        const end = Math.min(first + root.columns, cells.count);
        let height = 0;
        for (let i = first; i < end; ++i)
            height = Math.max(height, cells.itemAt(i)?.implicitHeight ?? 0);
        return height;
    }

    columns: Math.max(1, Math.floor((root.width + root.spacing) / (root.minimumColumnWidth + root.spacing)))

    ArrowKeys {}
    Repeater {
        id: cells
        onItemAdded: (index, item) => {
            item.width = Qt.binding(() => root.columnWidth);
            item.height = Qt.binding(() => root.rowHeight(index));
        }
    }
}
