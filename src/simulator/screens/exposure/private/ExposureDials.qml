import QtQuick
import Halvorin.Camera
import Halvorin.Simulator

/*! The controls of the simulated camera and of what is in front of it, spread over a height of
    `fill` if they don't need more. It needs a width. */
OLEDCard {
    id: root

    required property ExposureControls controls
    property real fill: 0

    padding: 14

    QtObject {
        id: metrics
        readonly property real pickerWidth: 268
        readonly property real groups: light.height + dials.height + format.height + distances.height
        readonly property real gap: Math.max(18, (root.fill - 2 * root.padding - metrics.groups) / 3)
    }

    Column {
        width: parent.width
        spacing: metrics.gap

        TitledPicker {
            id: light
            width: parent.width
            c: root.c
            title: qsTr("Light")
            model: LightList {}
            widestPicker: metrics.pickerWidth
            chosenID: root.controls.lightID
            onChosen: optionID => root.controls.lightID = optionID
        }
        Grid {
            id: dials
            anchors.horizontalCenter: parent.horizontalCenter
            columns: 2
            columnSpacing: 26
            rowSpacing: 10

            StepDial {
                c: root.c
                title: qsTr("Aperture")
                scaleOfStops: LabScales.aperture
                value: root.controls.aperture
                onMoved: value => root.controls.aperture = value
            }
            StepDial {
                c: root.c
                title: qsTr("Shutter")
                scaleOfStops: LabScales.shutter
                value: root.controls.shutter
                onMoved: value => root.controls.shutter = value
            }
            StepDial {
                c: root.c
                title: qsTr("ISO")
                scaleOfStops: LabScales.iso
                value: root.controls.iso
                onMoved: value => root.controls.iso = value
            }
            StepDial {
                c: root.c
                title: qsTr("Focal length")
                scaleOfStops: LabScales.focalLength
                value: root.controls.focal
                onMoved: value => root.controls.focal = value
            }
        }
        TitledPicker {
            id: format
            width: parent.width
            c: root.c
            title: qsTr("Sensor / film format")
            model: FormatList {}
            widestPicker: metrics.pickerWidth
            chosenID: root.controls.formatID
            onChosen: optionID => root.controls.formatID = optionID
        }
        Column {
            id: distances
            width: parent.width
            spacing: 10

            LabeledSlider {
                width: parent.width
                c: root.c
                title: qsTr("Subject distance (focus)")
                unit: "m"
                from: 0.5
                to: 20
                value: root.controls.subjectDistance
                onMoved: value => root.controls.subjectDistance = value
            }
            LabeledSlider {
                width: parent.width
                c: root.c
                title: qsTr("Background distance")
                unit: "m"
                from: root.controls.nearestBackground
                to: 200
                value: root.controls.backgroundDistance
                onMoved: value => root.controls.backgroundDistance = value
            }
            LabeledSlider {
                width: parent.width
                c: root.c
                title: qsTr("Cyclist speed")
                unit: "m/s"
                from: 0
                to: 15
                value: root.controls.moverSpeed
                onMoved: value => root.controls.moverSpeed = value
            }
        }
    }
}
