pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! How far each module has got, and its best quiz. */
OLEDCard {
    id: root

    QtObject {
        id: metrics
        readonly property real titleWidth: 330
        readonly property real countWidth: 44
        readonly property real quizWidth: 90
        readonly property real gap: 10
    }

    ModuleProgress {
        id: progress
    }
    Column {
        width: parent.width
        spacing: 6

        SectionCaption {
            c: root.c
            topPadding: 0
            bottomPadding: 3
            text: progress.caption
        }
        Repeater {
            model: progress
            delegate: Item {
                id: row

                required property string title
                required property int done
                required property int total
                required property string quiz

                width: parent?.width ?? 0
                height: Math.max(name.height, 20)
                Accessible.role: Accessible.StaticText
                Accessible.name: qsTr("%1 of %2 lessons, %3: ").arg(row.done).arg(row.total).arg(row.quiz) + row.title

                MuteHvText {
                    id: name
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(metrics.titleWidth, row.width * 0.4)
                    text: row.title
                    font: Type.rowTitle
                    color: root.c.oledText
                    wrapMode: Text.Wrap
                }
                ProgressBar {
                    anchors.left: name.right
                    anchors.leftMargin: metrics.gap
                    anchors.right: count.left
                    anchors.rightMargin: metrics.gap
                    anchors.verticalCenter: parent.verticalCenter
                    height: 6
                    c: root.c
                    done: row.done
                    total: row.total
                }
                MuteHvText {
                    id: count
                    anchors.right: quiz.left
                    anchors.verticalCenter: parent.verticalCenter
                    width: metrics.countWidth
                    text: row.done + "/" + row.total
                    font: Type.count
                    color: root.c.oledDim
                    horizontalAlignment: Text.AlignHCenter
                }
                MuteHvText {
                    id: quiz
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    width: metrics.quizWidth
                    text: row.quiz
                    font: Type.detail
                    color: root.c.oledDim
                    horizontalAlignment: Text.AlignRight
                }
            }
        }
    }
}
