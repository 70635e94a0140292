pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit

/*! The help: on the left the topics that a search finds, on the right the one that is being read.
    That one stays when the search no longer finds it. */
FocusScope {
    id: root

    property string initialTopic: ""

    function showTopic(topicID: string): void {
        topics.query = "";
        topics.reload();
        page.topicID = topicID;
        reader.contentY = 0;
        search.focusField();
    }
    function focusSearch(): void {
        search.focusField();
    }

    QtObject {
        id: metrics
        readonly property real inset: 16
        readonly property real gap: 14
        readonly property real listWidth: 260
        readonly property real radius: 22
        readonly property real barRoom: 11 // scroll bars stand in the panels' padding
    }

    Component.onCompleted: page.topicID = root.initialTopic

    HelpTopicList {
        id: topics
    }

    CNPanel {
        id: contents
        x: metrics.inset
        y: metrics.inset
        width: metrics.listWidth
        height: root.height - 2 * metrics.inset
        radius: metrics.radius

        Item {
            id: column
            anchors.fill: parent

            ArrowKeys {
                id: arrows
            }
            CNSearchField {
                id: search
                width: parent.width
                prompt: qsTr("Search help")
                text: topics.query
                outcome: topics.query === "" ? "" : topics.count === 1 ? qsTr("1 topic found") : qsTr("%1 topics found").arg(topics.count)
                onEdited: text => topics.query = text
            }
            HvText {
                id: nothing
                anchors {
                    top: search.bottom
                    topMargin: 16
                }
                x: 10
                width: parent.width - 20
                visible: topics.count === 0
                text: qsTr("Nothing found for \"%1\"").arg(topics.query)
                color: CNUI.theme.dim
                font: Type.topic
                wrapMode: Text.Wrap
            }
            ScrollSurface {
                id: list
                anchors {
                    top: search.bottom
                    topMargin: 10
                    bottom: parent.bottom
                }
                width: parent.width + metrics.barRoom
                contentWidth: width
                contentHeight: rows.height

                Column {
                    id: rows
                    width: column.width
                    spacing: 1
                    Accessible.role: Accessible.List
                    Accessible.name: qsTr("Topics")

                    Repeater {
                        model: topics
                        delegate: HelpTopicRow {
                            required property string topicID
                            required property string title
                            width: rows.width
                            label: title
                            selected: topicID === page.topicID
                            onClicked: {
                                page.topicID = topicID;
                                reader.contentY = 0;
                            }
                        }
                    }
                }
            }
        }
    }
    CNPanel {
        anchors {
            left: contents.right
            leftMargin: metrics.gap
            right: parent.right
            rightMargin: metrics.inset
            top: contents.top
            bottom: contents.bottom
        }
        radius: metrics.radius
        padding: 20

        Item {
            anchors.fill: parent

            ScrollSurface {
                id: reader
                width: parent.width + metrics.barRoom
                height: parent.height
                contentWidth: width
                contentHeight: page.height
                activeFocusOnTab: true
                Accessible.role: Accessible.Document
                Accessible.name: page.title

                HelpText {
                    id: page
                    width: Math.min(parent.width - metrics.barRoom, 680)
                }
            }
            ContinuousRectangle {
                anchors.fill: parent
                anchors.margins: -12
                visible: reader.activeFocus
                radius: 14
                strokeWidth: 2
                strokeFrom: CNUI.theme.text
            }
        }
    }
}
