pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The quiz of a module: all its questions on one page, which turns into its own review. */
HVScroll {
    id: root

    required property string moduleID

    /*! Return on an answer that is picked goes on: to the next question without one, or, when all
        have one, to the check. */
    function goOn(): void {
        const next = taking.firstUnanswered();
        if (next >= 0)
            (questions.itemAt(next) as QuizQuestion)?.takeFocus();
        else
            root.check();
    }
    function check(): void {
        taking.check();
        if (!taking.reviewed)
            return;
        toFoot.start();
        again.forceActiveFocus();
    }
    function tryAgain(): void {
        taking.tryAgain();
        root.scrollTo(0, 0);
        root.forceActiveFocus();
    }

    spokenName: taking.title
    padding: 24
    spacing: 14
    maximumWidth: 860
    // Another quiz begins at its beginning.
    onModuleIDChanged: root.contentY = 0
    // The score stands at the foot, which the explanations push down as they are laid out.
    onContentHeightChanged: if (toFoot.running) root.scrollTo(0, root.contentHeight)

    Timer {
        id: toFoot
        interval: 100
    }
    QuizTaking {
        id: taking
        moduleID: root.moduleID
    }
    Column {
        width: parent.width
        spacing: 8

        ScreenTitle {
            width: parent.width
            c: root.c
            title: taking.title
            subtitle: taking.subtitle
        }
        HvText {
            width: parent.width
            visible: taking.scores !== ""
            text: taking.scores
            font: Type.row
            color: root.c.oledDim
            wrapMode: Text.Wrap
        }
    }
    Repeater {
        id: questions
        model: taking
        delegate: QuizQuestion {
            width: parent?.width ?? 0
            c: root.c
            quiz: taking
            onDone: root.goOn()
        }
    }
    Item {
        width: parent.width
        height: Math.max(check.height, again.height) + 4

        HvText {
            id: count
            anchors.verticalCenter: parent.verticalCenter
            text: taking.reviewed ? qsTr("Score: %1 / %2").arg(taking.right).arg(taking.count)
                                : qsTr("%1 of %2 answered").arg(taking.answered).arg(taking.count)
            font: taking.reviewed ? Type.sheetTitle : Type.row
            color: taking.reviewed ? root.c.glow : root.c.oledDim
        }
        GlowButtonStyle {
            id: check
            anchors.left: count.right
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            visible: !taking.reviewed
            enabled: taking.complete
            c: root.c
            prominent: true
            symbol: "checklist"
            label: qsTr("Check my answers")
            onClicked: root.check()
        }
        GlowButtonStyle {
            id: again
            anchors.left: count.right
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            visible: taking.reviewed
            c: root.c
            label: qsTr("Try again")
            Accessible.description: count.text // It has the focus when the score comes.
            onClicked: root.tryAgain()
        }
    }
}
