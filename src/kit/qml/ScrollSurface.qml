import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A scrolling area for a desktop: the wheel, the touchpad, a finger, the bars and the keyboard
    move it, a drag of the mouse doesn't. It follows the keyboard focus of what it holds. */
Flickable {
    id: root

    property color barInk: CNUI.theme.text
    property bool barVisible: true
    /*! Counts what the reader himself has moved: who scrolls isn't thrown back. */
    property int handMoves: 0

    function scrollTo(x: real, y: real): void {
        behavior.scrollTo(x, y);
    }
    // A layout that shrinks must not leave the view beyond its end.
    function stayInside(): void {
        behavior.scrollTo(root.contentX, root.contentY);
    }

    interactive: false
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.AutoFlickIfNeeded
    clip: true

    onMovementStarted: ++root.handMoves
    Keys.onTabPressed: event => event.accepted = behavior.goOn(true)
    Keys.onBacktabPressed: event => event.accepted = behavior.goOn(false)

    onContentWidthChanged: stayInside()
    onContentHeightChanged: stayInside()
    onWidthChanged: stayInside()
    onHeightChanged: stayInside()

    ScrollBehavior {
        id: behavior
    }
    T.ScrollBar.vertical: ThinScrollBar {
        onPressedChanged: if (pressed) ++root.handMoves
        ink: root.barInk
        policy: root.barVisible && root.contentHeight > root.height ? T.ScrollBar.AsNeeded : T.ScrollBar.AlwaysOff
    }
    T.ScrollBar.horizontal: ThinScrollBar {
        onPressedChanged: if (pressed) ++root.handMoves
        ink: root.barInk
        policy: root.barVisible && root.contentWidth > root.width ? T.ScrollBar.AsNeeded : T.ScrollBar.AlwaysOff
    }
}
