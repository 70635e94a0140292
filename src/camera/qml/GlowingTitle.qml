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
        color: Qt.alpha(root.c.glow, 0.5)
        blur: metrics.blur
    }
    HvText {
        id: heading
        width: root.width
        text: root.title.toUpperCase()
        font: CNUI.cnFont(21, Font.ExtraBold, 1.4)
        color: root.c.oledText
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.Heading
        Accessible.name: root.title
    }
}
