import QtQuick
import Halvorin.Camera
import Halvorin.Simulator

/*! The Exposure Lab: a scene, the camera that photographs it, and the arithmetic of the picture. */
HVScroll {
    id: root

    QtObject {
        id: metrics
        readonly property real controlsWidth: 440
        readonly property size pictureWidth: Qt.size(460, 640) // at least where there is room, at most
        readonly property real columnGap: 20
        readonly property real panelGap: 14
        readonly property real widest: metrics.pictureWidth.height + metrics.columnGap + metrics.controlsWidth
    }

    ExposureControls {
        id: controls
    }
    ExposureReadout {
        id: readout
    }
    Column {
        id: page
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, metrics.widest)
        spacing: root.spacing

        ScreenTitle {
            width: parent.width
            c: root.c
            title: qsTr("Exposure Lab")
            subtitle: qsTr("Change aperture, shutter speed and ISO and watch the picture: brightness, background blur, motion blur and noise all follow the real math.")
        }
        Row {
            spacing: metrics.columnGap

            PictureColumn {
                id: picture
                // Where both have no room this one gives way.
                width: page.width - metrics.columnGap - dials.width
                c: root.c
                readout: readout
                controls: controls
            }
            ExposureDials {
                id: dials
                width: metrics.controlsWidth
                fill: picture.implicitHeight
                c: root.c
                controls: controls
            }
        }
        Row {
            id: panels
            readonly property real shared: page.width - 2 * spacing
            readonly property real rowHeight: Math.max(math.implicitHeight, equivalents.implicitHeight, depth.implicitHeight)
            spacing: metrics.panelGap

            MathPanel {
                id: math
                width: panels.shared * 0.34
                height: panels.rowHeight
                c: root.c
                readout: readout
            }
            EquivalentsPanel {
                id: equivalents
                width: panels.shared * 0.27
                height: panels.rowHeight
                c: root.c
                readout: readout
            }
            DepthPanel {
                id: depth
                width: panels.shared - math.width - equivalents.width
                height: panels.rowHeight
                c: root.c
                readout: readout
            }
        }
    }
}
