import QtQuick
import Halvorin.Camera

/*! What a component makes for the display, in the palette `c`. The component is known by the name
    of its QML type and module; that type and all that it needs are read when it is first shown, or
    after the first frame by MainWindow.readAhead(): a start doesn't wait for them. */
Loader {
    id: root

    required property hvColors c
    required property string component

    function fileOf(component: string): string {
        return `qrc:/qt/qml/${component.replace(/\./g, "/")}.qml`;
    }

    onComponentChanged: setSource(fileOf(root.component), {
        c: Qt.binding(() => root.c),
        focus: true
    })
}
