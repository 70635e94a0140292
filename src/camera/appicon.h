// The program's icon: the back of a medium-format camera, its screen lit through an aperture.
//
// Drawn in code like all else, so that it is sharp at every size and needs no file at run time. The
// files in packaging/, which desktops want, are written from it by build/tools/appicon.
#pragma once

#include <QByteArray>

class QPainter;

namespace AppIcon {

/// Paints the icon into a square of `side` from the origin on; corners stay clear. The smaller it
/// comes out on the device, the fewer parts it has: on 24 pixels and fewer an aperture alone.
/// Leaves the painter's state as it was. A side that isn't positive paints nothing.
void paint(QPainter &painter, double side);

/// The icon with all its parts as an SVG file; the same bytes at every call.
[[nodiscard]] QByteArray svg();

} // namespace AppIcon
