import QtQuick
import Halvorin.Camera

/*! The user's notes on one thing. It takes no room while there are none. */
Column {
    required property string targetType
    required property string targetID
    required property hvColors c

    visible: children.length > 0
}
