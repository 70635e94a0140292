import QtQuick
import Halvorin.Kit

/*! The About window. It is as large as what it tells. */
CNWindow {
    id: root

    readonly property size contentSize: Qt.size(440 * ZoomControl.zoom, 380 * ZoomControl.zoom)

    title: qsTr("About %1").arg(CNUI.appName)
    flags: Qt.Dialog | Qt.CustomizeWindowHint | Qt.WindowTitleHint | Qt.WindowCloseButtonHint
    width: root.contentSize.width
    height: root.contentSize.height
    minimumWidth: Math.min(root.contentSize.width, Screen.desktopAvailableWidth)
    maximumWidth: root.contentSize.width
    minimumHeight: Math.min(root.contentSize.height, Screen.desktopAvailableHeight)
    maximumHeight: root.contentSize.height
    minSize: Qt.size(400, 340)

    CRVNAboutView {
        anchors.fill: parent
        focus: true
    }
}
