import QtQuick
import Halvorin.Kit

/*! The ground that everything stands on: the selected theme's background. What stands on it takes
    its colors from the theme and is drawn anew when another one is chosen. */
Rectangle {
    color: CNUI.theme.bg
}
