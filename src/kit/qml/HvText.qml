import QtQuick
import Halvorin.Kit

/*! Text as everything on screen shows it: plain, so that a user's <b> stays <b>, and known to
    assistive technology. Text inside a control that has a name of its own is decorative. */
Text {
    id: root

    property bool decorative: false

    textFormat: Text.PlainText
    font: CNUI.cnFont(12.5)
    color: CNUI.theme.text

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
    Accessible.ignored: root.decorative
}
