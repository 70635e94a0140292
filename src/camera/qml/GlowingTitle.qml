import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A heading in capitals with a soft glow; it wraps in the width that it is given. */
Item {
    id: root

    required property string title
    required property hvColors c
    property alias horizontalAlignment: heading.horizontalAlignment

    QtObject {
        id: metrics
        readonly property real blur: 9
    }

    implicitWidth: heading.implicitWidth
    implicitHeight: heading.implicitHeight

    TextGlow {
        anchors.fill: heading
        anchors.margins: -metrics.blur
        text: heading.text
        font: heading.font
        alignment: heading.horizontalAlignment
        color: root.c.titleHalo
        blur: metrics.blur
    }
    HvText {
        id: heading
        width: root.width
        text: root.title.toUpperCase()
        font: Type.title
        color: root.c.oledText
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.Heading
        Accessible.name: root.title
    }
}
