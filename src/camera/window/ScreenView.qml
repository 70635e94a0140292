import QtQuick
import Halvorin.Kit
import Halvorin.Shell
import Halvorin.Window

/*! The screen that the dial points at. */
DisplayLoader {
    id: root

    component: AppModel.screenComponent
    // A screen made before the window has its size would lay out every text twice.
    active: root.width > 0 && root.height > 0
    onLoaded: if (CNUI.animated) appear.restart()

    NumberAnimation {
        id: appear
        target: root.item
        property: "opacity"
        from: 0
        to: 1
        duration: 200
        easing.type: Easing.InOutQuad
    }
}
