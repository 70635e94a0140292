import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! Lettering cut into the metal: a lit lower edge, a dark upper edge, and the ink between. */
Item {
    id: root

    required property string text
    required property real size
    property int weight: Font.ExtraBold
    required property hvColors c

    QtObject {
        id: metrics
        readonly property font face: CNUI.cnFont(root.size, root.weight, root.size * 0.14)
        readonly property real cut: Math.max(0.6, root.size * 0.06)
    }

    implicitWidth: top.implicitWidth
    implicitHeight: top.implicitHeight

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    MuteHvText {
        y: metrics.cut
        text: root.text
        font: metrics.face
        color: Metal.litCut
    }
    MuteHvText {
        y: -metrics.cut
        text: root.text
        font: metrics.face
        color: Metal.darkCut
    }
    MuteHvText {
        id: top
        text: root.text
        font: metrics.face
        color: root.c.engrave
    }
}
