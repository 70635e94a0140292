// The camera's two large surfaces, each a picture of several megabytes.
#pragma once

#include "camera/hvcolors.h"

#include <QImage>
#include <QRectF>
#include <QSize>

namespace Housing {

struct Body {
    QSize size;     ///< Points.
    QRectF display; ///< What something opaque covers; it isn't painted.
    HVColors colors;
    QSize pixels;

    friend bool operator==(const Body &, const Body &) = default;
};

struct Glass {
    QSize size; ///< Points.
    HVColors colors;
    QSize pixels;

    friend bool operator==(const Glass &, const Glass &) = default;
};

/// Metal, leather and a lit edge.
[[nodiscard]] QImage picture(const Body &body);

/// Bezel, inner glow and the sheen of the glass.
[[nodiscard]] QImage picture(const Glass &glass);

/// Paints both for the first who asks for such a body and such a glass. It may run in a thread of
/// its own, if nobody asks before it has returned.
void paintAhead(const Body &body, const Glass &glass);

/// Drops what was painted ahead and nobody has asked for.
void forgetAhead();

} // namespace Housing
