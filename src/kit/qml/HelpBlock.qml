import QtQuick
import Halvorin.Kit

/*! A heading, a bullet or a paragraph of a help page. */
Item {
    id: root

    required property int kind
    required property string text

    QtObject {
        id: metrics
        readonly property bool isBullet: root.kind === HelpPage.Bullet
        readonly property bool isHeading: root.kind === HelpPage.Heading
        readonly property real indent: metrics.isBullet ? 16 : 0
    }

    implicitHeight: words.y + words.implicitHeight

    MuteHvText {
        x: 3
        y: words.y
        visible: metrics.isBullet
        text: "•"
        font: Type.prose
        color: CNUI.theme.accent
    }
    HvText {
        id: words
        x: metrics.indent
        y: metrics.isHeading ? 10 : 0
        width: root.width - x
        text: root.text
        font: metrics.isHeading ? Type.heading : Type.prose
        lineHeight: metrics.isHeading ? 1 : 1.12
        wrapMode: Text.Wrap
        Accessible.role: {
            switch (root.kind) {
            case HelpPage.Heading: return Accessible.Heading;
            case HelpPage.Bullet: return Accessible.ListItem;
            default: return Accessible.Paragraph;
            }
        }
    }
}
