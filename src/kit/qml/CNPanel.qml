import QtQuick
import Halvorin.Kit

/*! A raised panel in the colors of the kit. */
Item {
    id: root

    property real radius: 20
    property real padding: 12
    default property alias content: inner.data

    implicitWidth: inner.childrenRect.width + 2 * root.padding
    implicitHeight: inner.childrenRect.height + 2 * root.padding

    ContinuousRectangle {
        anchors.fill: parent
        radius: root.radius
        fillFrom: CNUI.theme.panelTop
        fillTo: CNUI.theme.panelBottom
        strokeWidth: 1
        strokeFrom: Metal.panel.edgeTop
        strokeTo: Metal.panel.edgeBottom
    }
    Item {
        id: inner
        anchors.fill: parent
        anchors.margins: root.padding
    }
}
