import QtQuick
import Halvorin.Kit

/*! Shows its content magnified by the interface zoom: laid out in a smaller or larger logical
    window, scrolled only where that window could not keep its minimum size. */
Item {
    id: root

    property size minSize: Qt.size(960, 640)
    default property alias content: stage.data

    QtObject {
        id: metrics
        readonly property size offered: Qt.size(root.width, root.height)
        // Nothing while nothing is offered, or all would be laid out in its smallest size first.
        readonly property size logical: metrics.offered.width > 0 && metrics.offered.height > 0
            ? ZoomControl.logicalSize(metrics.offered, ZoomControl.zoom, root.minSize) : Qt.size(0, 0)
        readonly property bool scrolls: ZoomControl.scrolls(metrics.offered, ZoomControl.zoom, root.minSize)
        readonly property real zoom: ZoomControl.zoom
        onOfferedChanged: ZoomControl.scrollHome(surface)
        onZoomChanged: ZoomControl.scrollHome(surface)
    }

    Component.onCompleted: ZoomControl.scrollHome(surface)

    ZoomGestures {}
    ScrollSurface {
        id: surface
        anchors.fill: parent
        contentWidth: metrics.scrolls ? stage.width * metrics.zoom : root.width
        contentHeight: metrics.scrolls ? stage.height * metrics.zoom : root.height

        FocusScope {
            id: stage
            width: metrics.logical.width
            height: metrics.logical.height
            scale: metrics.zoom
            transformOrigin: Item.TopLeft
            focus: true
        }
    }
}
