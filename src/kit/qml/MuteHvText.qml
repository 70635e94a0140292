import QtQuick
import Halvorin.Kit

/*! Text as everything on screen shows it: plain, so that a user's <b> stays <b>. Assistive
    technology passes over it: it belongs to a control whose name says the same. All other text is
    an HvText. */
Text {
    textFormat: Text.PlainText
    font: Type.text
    color: CNUI.theme.text
}
