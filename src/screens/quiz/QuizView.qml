import QtQuick
import Halvorin.Camera

/*! The quiz of a module. */
PlaceholderScreen {
    required property string moduleID

    title: qsTr("Module quiz")
    line: qsTr("This quiz is still being set.")
    symbol: "checklist"
}
