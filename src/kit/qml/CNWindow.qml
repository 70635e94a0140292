import QtQuick
import Halvorin.Kit

/*! A window beside the application's own. Escape closes it, and it knows the keys that do the same
    in every window. */
Window {
    id: root

    /*! Whether it has a place from an earlier run; if not, it is centered. */
    property bool placed: false
    property size minSize: Qt.size(0, 0)
    default property alias content: host.content

    color: CNUI.theme.bg

    CRVNThemeRoot {
        anchors.fill: parent

        CNZoomHost {
            id: host
            anchors.fill: parent
            minSize: root.minSize
            focus: true
            Keys.onEscapePressed: root.close()
        }
    }
    ZoomKeys {}
    Shortcut {
        sequence: "Ctrl+W"
        onActivated: root.close()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: Qt.quit()
    }
}
