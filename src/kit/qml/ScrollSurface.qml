import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A scrolling area for a desktop: the wheel, the touchpad, the bars and the keyboard move it,
    a drag of the mouse doesn't. It follows the keyboard focus of what it holds. */
Flickable {
    id: root

    property color barInk: CNUI.theme.text
    property bool barVisible: true

    QtObject {
        id: metrics
        readonly property real wheelStep: 60
        readonly property real keyStep: 48
        readonly property real focusMargin: 16
        readonly property real maxX: Math.max(0, root.contentWidth - root.width)
        readonly property real maxY: Math.max(0, root.contentHeight - root.height)
    }

    function scrollTo(x: real, y: real): void {
        root.contentX = Math.max(0, Math.min(metrics.maxX, x));
        root.contentY = Math.max(0, Math.min(metrics.maxY, y));
    }

    function reveal(item: Item): void {
        const area = item.mapToItem(root.contentItem, 0, 0, item.width, item.height);
        const above = area.y - metrics.focusMargin;
        const below = area.y + area.height + metrics.focusMargin - root.height;
        scrollTo(root.contentX, root.contentY > above ? above : Math.max(root.contentY, below));
    }

    interactive: false
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    // A layout that shrinks must not leave the view beyond its end.
    onContentHeightChanged: scrollTo(root.contentX, root.contentY)
    onHeightChanged: scrollTo(root.contentX, root.contentY)

    Keys.onUpPressed: scrollTo(root.contentX, root.contentY - metrics.keyStep)
    Keys.onDownPressed: scrollTo(root.contentX, root.contentY + metrics.keyStep)
    Keys.onPressed: event => {
        const page = root.height - metrics.keyStep;
        switch (event.key) {
        case Qt.Key_PageUp: scrollTo(root.contentX, root.contentY - page); break;
        case Qt.Key_PageDown: scrollTo(root.contentX, root.contentY + page); break;
        case Qt.Key_Home: scrollTo(root.contentX, 0); break;
        case Qt.Key_End: scrollTo(root.contentX, metrics.maxY); break;
        default: return;
        }
        event.accepted = true;
    }

    WheelHandler {
        target: null
        enabled: metrics.maxX > 0 || metrics.maxY > 0
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => {
            const fine = event.pixelDelta.x !== 0 || event.pixelDelta.y !== 0;
            const dx = fine ? event.pixelDelta.x : event.angleDelta.x / 120 * metrics.wheelStep;
            const dy = fine ? event.pixelDelta.y : event.angleDelta.y / 120 * metrics.wheelStep;
            root.scrollTo(root.contentX - dx, root.contentY - dy);
        }
    }

    Connections {
        target: root.Window.window
        function onActiveFocusItemChanged(): void {
            const item = root.Window.activeFocusItem;
            for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
                if (ancestor === root.contentItem) {
                    if (item.visualFocus ?? false)
                        root.reveal(item);
                    return;
                }
            }
        }
    }

    T.ScrollBar.vertical: ThinScrollBar {
        ink: root.barInk
        policy: root.barVisible && metrics.maxY > 0 ? T.ScrollBar.AsNeeded : T.ScrollBar.AlwaysOff
    }
    T.ScrollBar.horizontal: ThinScrollBar {
        ink: root.barInk
        policy: root.barVisible && metrics.maxX > 0 ? T.ScrollBar.AsNeeded : T.ScrollBar.AlwaysOff
    }
}
