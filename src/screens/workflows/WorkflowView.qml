import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The work on film and digitally side by side, and the programs that professionals use for it. */
HVScroll {
    id: root

    ScreenTitle {
        width: parent.width
        c: root.c
        title: qsTr("Workflows & Software")
        subtitle: qsTr("Film and digital side by side, from pressing the shutter to a finished print — and the software professionals use.")
    }
    OLEDCard {
        width: parent.width
        c: root.c

        WorkflowTable {
            width: parent.width
            c: root.c
        }
    }
    // Below the display's edge at first, so that nobody waits for the programs: a kind at a time,
    // with frames between them.
    Timer {
        id: turns
        property int passed: 0
        interval: 16
        repeat: true
        running: CNUI.animated && turns.passed < kinds.count
        onTriggered: ++turns.passed
    }
    Repeater {
        id: kinds
        model: SoftwareKindList {}
        delegate: Loader {
            id: group

            required property int index
            required property string kind
            required property string caption

            width: parent?.width ?? 0
            // Qt 6.4's Loader can't create components of a file that binds them, so these reach out
            // unbound.
            // qmllint disable unqualified
            active: !CNUI.animated || group.index < turns.passed
            sourceComponent: SoftwareGroup {
                width: group.width
                c: root.c
                kind: group.kind
                caption: group.caption
            }
            // qmllint enable unqualified
        }
    }
    HvText {
        width: parent.width
        text: qsTr("Names of software belong to their makers. CRVN is not affiliated with them; links go to the makers' own pages. Prices and plans change — check the maker's page.")
        font: Type.detail
        color: root.c.oledDim
        wrapMode: Text.Wrap
    }
}
