import QtQuick
import Halvorin.Kit
import Halvorin.Shell

/*! The one message that the user hasn't read yet. */
Item {
    CNDialog {
        title: CNUI.appName
        message: AppModel.messageText
        visible: true
        onClosed: AppModel.dismissMessage()
    }
}
