import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Shell

/*! The camera's top plate: name, search, mode dial and shutter. */
Item {
    id: root

    required property hvColors c

    function focusSearch(): void {
        search.focusField();
    }

    QtObject {
        id: metrics
        readonly property real inset: 22
        readonly property real spacing: 12
        readonly property real letteringWidth: 346
        readonly property real searchWidth: 390
    }

    implicitHeight: Geometry.plateHeight

    SoftShadow {
        anchors.fill: parent
        anchors.topMargin: 3
        radius: Geometry.plateRadius
        blur: 8
        color: Metal.plateShadow
    }
    ContinuousRectangle {
        anchors.fill: parent
        radius: Geometry.plateRadius
        fillFrom: root.c.bodyHi
        fillTo: root.c.body
        strokeWidth: 1
        strokeFrom: Metal.plate.edgeTop
        strokeTo: Metal.plate.edgeBottom
    }
    Row {
        id: lettering
        anchors.left: parent.left
        anchors.leftMargin: metrics.inset
        anchors.verticalCenter: parent.verticalCenter
        spacing: metrics.spacing

        Badge {
            anchors.verticalCenter: parent.verticalCenter
        }
        Column {
            anchors.verticalCenter: parent.verticalCenter
            spacing: 3
            Engraved {
                c: root.c
                text: "CRVN HALVORIN"
                size: 13
            }
            Engraved {
                c: root.c
                text: "MEDIUM FORMAT · 6×4.5 · " + AppModel.screenTitle.toUpperCase()
                size: 8.5
                weight: Font.Bold
            }
        }
    }
    Item {
        id: searchPlace

        // In the middle between the lettering, taken as wide as with the longest title (or the
        // field would move with the dial), and the controls.
        readonly property real from: metrics.inset + metrics.letteringWidth + metrics.spacing
        readonly property real to: controls.x - metrics.spacing

        x: Math.round(from + (to - from - width) / 2)
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(metrics.searchWidth, to - from)
        height: search.implicitHeight + 10

        ContinuousRectangle {
            anchors.fill: parent
            radius: height / 2
            fillFrom: Metal.well.top
            strokeWidth: 1
            strokeFrom: Metal.well.edgeTop
            strokeTo: Metal.well.edgeBottom
        }
        OLEDSearchField {
            id: search
            anchors.fill: parent
            anchors.margins: 5
            c: root.c
            prompt: qsTr("Search lessons, gear, history, videos…")
            text: AppModel.globalQuery
            outcome: AppModel.searchOutcome
            onEdited: text => AppModel.globalQuery = text
        }
    }
    Row {
        id: controls
        anchors.right: parent.right
        anchors.rightMargin: metrics.inset
        anchors.verticalCenter: parent.verticalCenter
        spacing: metrics.spacing

        ModeDial {
            anchors.verticalCenter: parent.verticalCenter
            c: root.c
        }
        ShutterButton {
            anchors.verticalCenter: parent.verticalCenter
            c: root.c
        }
    }
}
