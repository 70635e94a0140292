import QtQuick
import Halvorin.Kit
import Halvorin.Shell

/*! Asks before a note that is being written goes with the window. */
Item {
    id: root

    property Window window

    signal closed()

    CNDialog {
        title: qsTr("Close without saving your note?")
        message: qsTr("You are still writing a note. What you have written would be lost.")
        buttonTitle: qsTr("Close Without Saving")
        cancelTitle: qsTr("Keep Writing")
        destructive: true
        visible: true
        onAccepted: {
            AppModel.dismissNote();
            root.window.close();
        }
        onClosed: root.closed()
    }
}
