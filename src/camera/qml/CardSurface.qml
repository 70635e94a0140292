import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! What a card on the display is made of. */
ContinuousRectangle {
    id: root

    required property hvColors c
    property bool raised: false

    radius: Geometry.cardRadius
    fillFrom: root.raised ? Qt.lighter(root.c.oledCard, 1.35) : root.c.oledCard
    strokeWidth: 1
    strokeFrom: root.raised ? root.c.cardEdgeRaised : root.c.cardEdge
}
