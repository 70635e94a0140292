import QtQuick
import Halvorin.Kit

/*! The keys of the interface zoom, in a window without a View menu. */
Item {
    Shortcut {
        sequences: ["Ctrl++", "Ctrl+="]
        onActivated: ZoomControl.zoomIn()
    }
    Shortcut {
        sequence: "Ctrl+-"
        onActivated: ZoomControl.zoomOut()
    }
    Shortcut {
        sequence: "Ctrl+0"
        onActivated: ZoomControl.actualSize()
    }
}
