pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit
import Halvorin.Camera

/*! A choice among the rows of a model with the roles `optionID` and `title`; the chosen id comes in
    as `chosenID` and goes out with `chosen`. It opens by mouse, Space and Return; arrows choose
    without opening it, and what is typed goes to the row that begins so.

    The list lives in the window's overlay, outside the magnified interface, and so magnifies
    itself. */
T.ComboBox {
    id: root

    required property string title
    required property string chosenID
    required property hvColors c

    signal chosen(string optionID)

    QtObject {
        id: metrics
        readonly property real zoom: ZoomControl.zoom
        readonly property real rowHeight: 28 * metrics.zoom
        readonly property real listPadding: 5 * metrics.zoom
        readonly property real gap: 4
        readonly property real windowMargin: 8
    }

    // Shows what its owner has chosen and nothing of what isn't offered. The rows can be searched
    // only when all is in place, and whoever activates one takes the binding's place.
    function follow(): void {
        root.currentIndex = Qt.binding(() => root.indexOfValue(root.chosenID));
    }
    Component.onCompleted: root.follow()
    onActivated: index => {
        root.chosen(root.valueAt(index));
        root.follow();
    }

    textRole: "title"
    valueRole: "optionID"
    implicitWidth: 240
    implicitHeight: 30
    leftPadding: 12
    rightPadding: 30
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    Accessible.role: Accessible.ComboBox
    Accessible.name: root.title
    Accessible.description: root.displayText
    Accessible.onPressAction: root.popup.open()

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
    contentItem: MuteHvText {
        text: root.displayText
        color: root.c.glow
        font: Type.button
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
    indicator: Symbol {
        x: root.width - width - 10
        anchors.verticalCenter: parent?.verticalCenter
        name: "chevron.down"
        pointSize: 10
        weight: Font.Bold
        ink: root.c.glow
    }
    background: ContinuousRectangle {
        radius: Geometry.buttonRadius
        fillFrom: root.hovered || root.popup.visible ? root.c.quietUnderPointer : root.c.quiet
        strokeWidth: root.visualFocus ? 2 : 1
        strokeFrom: root.visualFocus ? root.c.oledText : root.c.buttonEdge
    }
    delegate: T.ItemDelegate {
        id: row

        required property int index
        required property string optionID
        required property string title

        width: ListView.view?.width ?? 0
        height: metrics.rowHeight
        highlighted: root.highlightedIndex === row.index
        hoverEnabled: true
        Accessible.name: row.title

        contentItem: Item {
            Symbol {
                id: mark
                x: 8 * metrics.zoom
                anchors.verticalCenter: parent.verticalCenter
                visible: row.optionID === root.chosenID
                name: "checkmark"
                pointSize: 10 * metrics.zoom
                weight: Font.Bold
                ink: root.c.glow
            }
            MuteHvText {
                x: 28 * metrics.zoom
                width: parent.width - x
                anchors.verticalCenter: parent.verticalCenter
                text: row.title
                color: row.optionID === root.chosenID ? root.c.glow : root.c.oledText
                font: CNUI.cnFont(Type.row.pointSize * metrics.zoom, Font.Medium)
                elide: Text.ElideRight
            }
        }
        background: ContinuousRectangle {
            visible: row.highlighted
            radius: 7 * metrics.zoom
            fillFrom: root.c.quietUnderPointer
        }
    }
    popup: T.Popup {
        y: root.height + metrics.gap
        width: root.width * metrics.zoom
        height: Math.min(list.implicitHeight + topPadding + bottomPadding, (root.T.Overlay.overlay?.height ?? 0) - 2 * metrics.windowMargin)
        padding: metrics.listPadding
        margins: metrics.windowMargin
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

        contentItem: ListView {
            id: list
            implicitHeight: contentHeight
            clip: true
            model: root.popup.visible ? root.delegateModel : null
            currentIndex: root.highlightedIndex
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: ThinScrollBar {
                ink: root.c.glow
            }
        }
        background: Item {
            SoftShadow {
                anchors.fill: parent
                anchors.topMargin: 4
                radius: Geometry.buttonRadius * metrics.zoom
                blur: 14
                color: Metal.partShadow
            }
            ContinuousRectangle {
                anchors.fill: parent
                radius: Geometry.buttonRadius * metrics.zoom
                fillFrom: root.c.oledCard
                strokeWidth: 1
                strokeFrom: root.c.buttonEdge
            }
        }
    }
}
