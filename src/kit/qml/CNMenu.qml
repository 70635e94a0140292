import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A menu. It lives in the window's overlay, outside the magnified interface, and so magnifies
    itself. */
T.Menu {
    id: root

    readonly property real zoom: ZoomControl.zoom

    implicitWidth: Math.max(200 * root.zoom, list.widest + leftPadding + rightPadding)
    implicitHeight: list.contentHeight + topPadding + bottomPadding
    // A long one scrolls, and leaves the menu bar to be seen.
    height: Math.min(implicitHeight, (T.Overlay.overlay?.height ?? Infinity) - 40)
    margins: 4
    padding: 5 * root.zoom
    overlap: 2 * root.zoom
    // The menu bar's mnemonics and Escape need the focus.
    focus: true

    delegate: CNMenuItem {}

    contentItem: ListView {
        id: list

        readonly property real widest: {
            let widest = 0;
            for (let i = 0; i < root.count; ++i)
                widest = Math.max(widest, root.itemAt(i)?.implicitWidth ?? 0);
            return widest;
        }

        implicitHeight: contentHeight
        model: root.contentModel
        interactive: contentHeight > height
        clip: true
        currentIndex: root.currentIndex
    }
    background: Item {
        SoftShadow {
            anchors.fill: parent
            anchors.topMargin: 4
            radius: 10 * root.zoom
            blur: 14 * root.zoom
            color: Metal.partShadow
        }
        ContinuousRectangle {
            anchors.fill: parent
            radius: 10 * root.zoom
            fillFrom: CNUI.theme.panelTop
            fillTo: CNUI.theme.panelBottom
            strokeWidth: 1
            strokeFrom: CNUI.theme.rim
        }
    }
}
