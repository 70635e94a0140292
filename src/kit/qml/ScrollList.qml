import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A ScrollSurface for any number of rows: it makes those in sight and a little more. Rows may be
    of different heights; those that aren't made yet are guessed, and the bar with them. */
ListView {
    id: root

    property color barInk: CNUI.theme.text
    property bool barVisible: true
    property int handMoves: 0 // as a ScrollSurface counts them

    function scrollTo(x: real, y: real): void {
        behavior.scrollTo(x, y);
    }

    /*! What Tab does that no row answers. */
    function goOn(forward: bool): bool {
        return behavior.goOn(forward);
    }

    interactive: false
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    cacheBuffer: 400

    onContentHeightChanged: behavior.stayInsideLater()
    onHeightChanged: behavior.stayInsideLater()

    ScrollBehavior {
        id: behavior
    }
    T.ScrollBar.vertical: ThinScrollBar {
        ink: root.barInk
        policy: root.barVisible && root.contentHeight > root.height ? T.ScrollBar.AsNeeded : T.ScrollBar.AlwaysOff
    }
}
