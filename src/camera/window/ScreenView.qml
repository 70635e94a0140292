import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell

/*! The screen that the dial points at. */
FocusScope {
    id: root

    required property hvColors c

    Loader {
        id: screen
        anchors.fill: parent
        focus: true
        // A screen made before the window has its size would lay out every text twice.
        active: root.width > 0 && root.height > 0
        sourceComponent: {
            switch (AppModel.screen) {
            case HVScreen.Home: return home;
            case HVScreen.Course: return course;
            default: return later;
            }
        }
        onLoaded: if (CNUI.animated) appear.restart()

        NumberAnimation {
            id: appear
            target: screen.item
            property: "opacity"
            from: 0
            to: 1
            duration: 200
            easing.type: Easing.InOutQuad
        }
    }
    // Qt 6.4's Loader can't create components of a file that binds them, so these reach out unbound.
    // qmllint disable unqualified
    Component {
        id: home
        HomeView {
            c: root.c
            focus: true
        }
    }
    Component {
        id: course
        Late {
            c: root.c
            file: "../Screens/CourseView.qml"
            focus: true
        }
    }
    Component {
        id: later
        PlaceholderScreen {
            c: root.c
            title: AppModel.screenTitle
            symbol: AppModel.screenSymbol
            line: qsTr("This screen is still being built.")
        }
    }
}
