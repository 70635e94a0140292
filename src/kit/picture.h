// Pictures painted with every core, and around a habit of Qt's.
#pragma once

#include <QImage>

#include <functional>

class QPainter;

/// A picture of so many pixels, transparent but for what `paint` paints; edges are smoothed. The
/// painter counts in points, of which the picture shows `points`; none may be 0 where there are
/// pixels. A large picture is painted in bands on several threads: `paint` is called for each, on a
/// painter that takes in no more than its band.
///
/// Qt's rasterizer cuts a fill of about a hundred runs of pixels or more into pieces for the global
/// thread pool, and waits for them. Nearly all of our fills are done before the first piece has
/// reached its thread, so that a drawing of many small shapes takes twice as long. On a thread of
/// that pool the rasterizer fills by itself, so `paint` is called there unless the picture is low.
/// Nothing else of ours may run in the global pool: this would wait behind it. A thread of the pool
/// opens fonts of its own; what is mostly text is better painted without this.
[[nodiscard]] QImage paintedPicture(
    QSize pixels, QSize points, const std::function<void(QPainter &)> &paint);
