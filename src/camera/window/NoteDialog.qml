import QtQuick
import Halvorin.Kit
import Halvorin.Shell

/*! Stands where a note will be written. */
Item {
    CNDialog {
        title: qsTr("New note")
        message: qsTr("Writing notes is still being built.")
        visible: true
        onClosed: AppModel.dismissNote()
    }
}
