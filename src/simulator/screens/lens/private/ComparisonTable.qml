pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Simulator

/*! The comparison as a table, the fastest lens first. It needs a width. */
OLEDCard {
    id: root

    required property LensComparison comparison

    readonly property list<string> heads: [qsTr("f-number"), qsTr("Light gathered"), qsTr("Shutter needed"), qsTr("Background blur"), qsTr("Depth of field")]
    readonly property list<real> columns: [0, 70, 240, 390, 590]

    padding: 14

    Column {
        width: parent.width

        Item {
            width: parent.width
            height: 22

            Repeater {
                model: root.heads
                delegate: HvText {
                    required property int index
                    required property string modelData
                    x: root.columns[index]
                    text: modelData
                    font: Type.columnHead
                    color: root.c.oledDim
                }
            }
        }
        Repeater {
            model: root.comparison
            delegate: ComparisonRow {
                width: parent?.width ?? 0
                c: root.c
                columns: root.columns
                heads: root.heads
            }
        }
    }
}
