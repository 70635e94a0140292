import QtQuick
import Halvorin.Kit
import Halvorin.Window

/*! The camera as the window shows it. */
CRVNThemeRoot {
    MainWindow {
        anchors.fill: parent
    }
}
