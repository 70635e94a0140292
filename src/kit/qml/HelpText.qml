pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit

/*! A help topic as it is read: its title and its text. */
Column {
    id: root

    property alias topicID: page.topicID
    readonly property alias title: page.title

    spacing: 6

    HelpPage {
        id: page
    }
    HvText {
        width: root.width
        bottomPadding: 6
        text: page.title
        font: Type.pageTitle
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
    }
    Repeater {
        model: page
        delegate: HelpBlock {
            width: root.width
        }
    }
}
