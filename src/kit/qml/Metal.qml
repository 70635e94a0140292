pragma Singleton

import QtQuick
import Halvorin.Kit

/*! What the camera and the kit are made of where no theme colors it: neutral grays, lit from above.
    Colors come through the palette `c` or the kit's theme. */
QtObject {
    id: root

    /*! A surface and its edge, each from its top to its bottom. */
    component Finish: QtObject {
        id: finish
        property color top: "transparent"
        property color bottom: finish.top
        property color edgeTop: "transparent"
        property color edgeBottom: finish.edgeTop
    }

    readonly property Finish chrome: Finish {
        top: CNUI.gray(0.42)
        bottom: CNUI.gray(0.16)
        edgeTop: CNUI.gray(1, 0.55)
        edgeBottom: CNUI.gray(0, 0.5)
    }
    readonly property Finish anodized: Finish {
        top: CNUI.gray(1, 0.14)
        bottom: CNUI.gray(1, 0.06)
        edgeTop: CNUI.gray(1, 0.35)
        edgeBottom: CNUI.gray(1, 0.12)
    }
    readonly property Finish badge: Finish {
        top: CNUI.gray(0.85)
        bottom: CNUI.gray(0.45)
        edgeTop: CNUI.gray(0, 0.6)
    }
    readonly property Finish lug: Finish {
        top: CNUI.gray(0.7)
        bottom: CNUI.gray(0.3)
        edgeTop: CNUI.gray(1, 0.5)
        edgeBottom: CNUI.gray(0, 0.5)
    }
    readonly property Finish shutter: Finish {
        top: CNUI.gray(0.75)
        bottom: CNUI.gray(0.35)
        edgeTop: CNUI.gray(1, 0.5)
        edgeBottom: CNUI.gray(0, 0.5)
    }
    readonly property Finish shutterUnderPointer: Finish {
        top: CNUI.gray(0.82)
        bottom: root.shutter.bottom
        edgeTop: root.shutter.edgeTop
        edgeBottom: root.shutter.edgeBottom
    }
    readonly property Finish key: Finish {
        top: CNUI.gray(0.2)
        bottom: CNUI.gray(0.07)
        edgeTop: CNUI.gray(1, 0.3)
        edgeBottom: CNUI.gray(0, 0.8)
    }
    readonly property Finish keyUnderPointer: Finish {
        top: CNUI.gray(0.26)
        bottom: CNUI.gray(0.13)
        edgeTop: root.key.edgeTop
        edgeBottom: root.key.edgeBottom
    }
    // What a theme or the palette fills, or what is let into the metal.
    readonly property Finish panel: Finish {
        edgeTop: CNUI.gray(1, 0.35)
        edgeBottom: CNUI.gray(0, 0.5)
    }
    readonly property Finish plate: Finish {
        edgeTop: CNUI.gray(1, 0.25)
        edgeBottom: CNUI.gray(0, 0.6)
    }
    readonly property Finish cap: Finish {
        edgeTop: CNUI.gray(1, 0.25)
        edgeBottom: CNUI.gray(0, 0.35)
    }
    readonly property Finish rail: Finish {
        top: CNUI.gray(0, 0.55)
        edgeTop: CNUI.gray(1, 0.18)
        edgeBottom: CNUI.gray(0, 0.8)
    }
    readonly property Finish well: Finish {
        top: CNUI.gray(0, 0.6)
        edgeTop: CNUI.gray(0, 0.6)
        edgeBottom: CNUI.gray(1, 0.12)
    }

    /*! Under what is lit from within, which would show the leather otherwise. */
    readonly property color ground: CNUI.gray(0.07)

    // Shadows, from the lightest on, by what casts them.
    readonly property color buttonShadow: CNUI.gray(0, 0.4)
    readonly property color plateShadow: CNUI.gray(0, 0.45)
    readonly property color keyShadow: CNUI.gray(0, 0.5)
    readonly property color partShadow: CNUI.gray(0, 0.6)
    readonly property color bodyShadow: CNUI.gray(0, 0.65)
    readonly property color dialogShadow: CNUI.gray(0, 0.7)
    /*! Over what a dialog keeps from being used. */
    readonly property color veil: CNUI.gray(0, 0.55)

    // Lettering: printed on bright metal, and the two cuts of an engraving.
    readonly property color print: CNUI.gray(0, 0.8)
    readonly property color litCut: CNUI.gray(1, 0.14)
    readonly property color darkCut: CNUI.gray(0, 0.85)
    /*! Inside the kit's search field. */
    readonly property color fieldFill: CNUI.gray(0, 0.35)
}
