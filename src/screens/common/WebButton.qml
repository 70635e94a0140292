import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A small button that leads to a page of the web; its tip names the host. */
GlowButtonStyle {
    id: root

    required property string address
    required property string host

    compact: true
    tip: root.host
    onClicked: CNUI.openAddress(root.address)
    Accessible.role: Accessible.Link
}
