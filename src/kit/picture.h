// Pictures painted on the threads of the global pool, which is for nothing else.
#pragma once

#include <QImage>
#include <QRect>
#include <QSize>
#include <QThreadPool>

#include <functional>
#include <future>
#include <memory>
#include <type_traits>
#include <utility>

class QPainter;

namespace Painting {

/// The global pool, with threads that stay for as long as the program runs. One that ended would
/// take its fonts with it, and the next would open them again. It would also begin in the memory
/// that some other thread has left, until each such place is as large as any thread ever needed.
[[nodiscard]] QThreadPool &threadPool();

/// Paints a picture of so many pixels, transparent but for what `paint` paints; edges are
/// smoothed. The painter counts in points, of which the picture shows `points`; none may be 0 where
/// there are pixels. A large picture is painted in bands on several threads: `paint` is called for
/// each, on a painter that takes in no more than its band. All calls are over when the picture is
/// ready.
///
/// Qt's rasterizer cuts a fill of about a hundred runs of pixels or more into pieces for the global
/// thread pool, and waits for them. Nearly all of our fills are done before the first piece has
/// reached its thread, so that a drawing of many small shapes takes twice as long. On a thread of
/// that pool the rasterizer fills by itself, so `paint` is called there. Nothing but pictures may
/// run in the global pool: these would wait behind it. A thread of the pool opens fonts of its own;
/// what is mostly text is better painted without this.
[[nodiscard]] std::shared_future<QImage> paintAsync(
    QSize pixels, QSizeF points, std::function<void(QPainter &)> paint);

/// The same of one part of the picture, a rectangle of its pixels: parts beside one another are
/// what the whole would be. `paint` paints the whole, on a painter that takes in the part.
[[nodiscard]] std::shared_future<QImage> paintPartAsync(
    QSize pixels, QSizeF points, const QRect &part, std::function<void(QPainter &)> paint);

/// Calls `make` where pictures are painted, for one that is made by other means than a painter, and
/// answers with the future of what it returns. It must not wait for another of them.
template <typename Make>
[[nodiscard]] auto runAsync(Make make)
{
    using Task = std::packaged_task<std::invoke_result_t<Make>()>;
    const auto task = std::make_shared<Task>(std::move(make));
    threadPool().start([task] { (*task)(); });
    return task->get_future().share();
}

} // namespace Painting
