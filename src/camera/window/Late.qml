import QtQuick
import Halvorin.Camera

/*! What the file of a screen makes, in the palette `c`. That file and all that it needs are read
    when it is first shown, or after the first frame by MainWindow.readAhead(): a start doesn't wait
    for them. */
Loader {
    id: root

    required property hvColors c
    required property url file

    Component.onCompleted: setSource(root.file, {
        c: Qt.binding(() => root.c),
        focus: true
    })
}
