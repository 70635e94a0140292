pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! A question and its options. Tab goes from question to question; within one the arrow keys and
    the digits pick. */
OLEDCard {
    id: root

    required property QuizTaking quiz
    required property int index
    required property int number
    required property string prompt
    required property var options
    required property int picked
    required property var marks
    required property string explanation
    required property bool correct

    /*! Return on the option that is picked. */
    signal done()

    function takeFocus(): void {
        rows.itemAt(Math.max(0, root.picked))?.forceActiveFocus(Qt.TabFocusReason);
    }
    function pick(option: int): void {
        if (option < 0 || option >= rows.count)
            return;
        rows.itemAt(option).forceActiveFocus(Qt.TabFocusReason);
        root.quiz.pick(root.index, option);
    }

    // Who comes to an option by Tab is told what it answers.
    Accessible.role: Accessible.Grouping
    Accessible.name: root.number + ". " + root.prompt

    Column {
        width: parent.width
        spacing: 8

        HvText {
            width: parent.width
            text: root.number + ". " + root.prompt
            font: Type.question
            color: root.c.oledText
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
        }
        Column {
            width: parent.width
            Repeater {
                id: rows
                model: root.options
                delegate: QuizOption {
                    required property int index
                    required property string modelData

                    width: parent?.width ?? 0
                    c: root.c
                    label: modelData
                    picked: root.picked === index
                    enabled: !root.quiz.reviewed
                    symbol: root.marks[index].symbol
                    ink: root.c[root.marks[index].ink]
                    verdict: root.marks[index].verdict
                    // One stop for the Tab key in each question.
                    focusPolicy: index === Math.max(0, root.picked) ? Qt.StrongFocus : Qt.ClickFocus
                    onChosen: root.quiz.pick(root.index, index)
                    onConfirmed: root.done()
                    Keys.onUpPressed: root.pick(index - 1)
                    Keys.onDownPressed: root.pick(index + 1)
                    Keys.onPressed: event => {
                        const option = event.key - Qt.Key_1;
                        event.accepted = option >= 0 && option < rows.count && !event.modifiers;
                        if (event.accepted)
                            root.pick(option);
                    }
                }
            }
        }
        HvText {
            width: parent.width
            visible: root.quiz.reviewed
            topPadding: 2
            text: root.explanation
            font: Type.text
            color: root.correct ? root.c.good : root.c.warn
            lineHeight: 1.15
            wrapMode: Text.Wrap
        }
    }
}
