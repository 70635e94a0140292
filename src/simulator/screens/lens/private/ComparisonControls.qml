pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Camera
import Halvorin.Simulator

/*! Which f-numbers are compared, and under which conditions. It needs a width. */
OLEDCard {
    id: root

    required property LensComparison comparison

    padding: 14

    QtObject {
        id: metrics
        readonly property real gap: 24
        readonly property real half: (root.width - 2 * root.padding - metrics.gap) / 2
    }

    Column {
        width: parent.width
        spacing: 14

        SectionCaption {
            c: root.c
            topPadding: 0
            text: qsTr("COMPARE")
        }
        Flow {
            width: parent.width
            spacing: 8

            Repeater {
                model: root.comparison.offered
                delegate: GlowButtonStyle {
                    id: lens

                    required property double aperture
                    required property bool chosen
                    required label

                    c: root.c
                    prominent: lens.chosen
                    checkable: true
                    checked: lens.chosen
                    Accessible.checkable: true
                    Accessible.onToggleAction: lens.clicked()
                    onClicked: {
                        root.comparison.toggle(lens.aperture);
                        // The click has turned it over, even where two must remain.
                        lens.checked = Qt.binding(() => lens.chosen);
                    }
                }
            }
        }
        Row {
            spacing: metrics.gap

            TitledPicker {
                width: metrics.half
                c: root.c
                title: qsTr("Light")
                model: LightList {}
                chosenID: root.comparison.lightID
                onChosen: optionID => root.comparison.lightID = optionID
            }
            TitledPicker {
                width: metrics.half
                c: root.c
                title: qsTr("Format")
                model: FormatList {}
                chosenID: root.comparison.formatID
                onChosen: optionID => root.comparison.formatID = optionID
            }
        }
        Row {
            spacing: metrics.gap

            StepDial {
                id: iso
                c: root.c
                title: qsTr("ISO")
                scaleOfStops: LabScales.iso
                value: root.comparison.iso
                onMoved: value => root.comparison.iso = value
            }
            StepDial {
                id: focal
                c: root.c
                title: qsTr("Focal length")
                scaleOfStops: LabScales.focalLength
                value: root.comparison.focal
                onMoved: value => root.comparison.focal = value
            }
            Column {
                anchors.verticalCenter: parent.verticalCenter
                width: root.width - 2 * root.padding - iso.width - focal.width - 2 * metrics.gap
                spacing: 12

                LabeledSlider {
                    width: parent.width
                    c: root.c
                    title: qsTr("Subject distance (focus)")
                    unit: "m"
                    from: 0.5
                    to: 10
                    value: root.comparison.subject
                    onMoved: value => root.comparison.subject = value
                }
                LabeledSlider {
                    width: parent.width
                    c: root.c
                    title: qsTr("Background distance")
                    unit: "m"
                    from: root.comparison.nearestBackground
                    to: 100
                    value: root.comparison.background
                    onMoved: value => root.comparison.background = value
                }
            }
        }
    }
}
