import Halvorin.Camera
import Halvorin.Shell

/*! Stands where a screen is still being built, and says so. */
PlaceholderScreen {
    title: AppModel.screenTitle
    symbol: AppModel.screenSymbol
    line: qsTr("This screen is still being built.")
}
