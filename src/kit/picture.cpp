#include "kit/picture.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <atomic>

namespace Painting {

namespace {

constexpr int kLeastBand = 128 * 1024; // pixels

int bandCount(QSize size, const QThreadPool &pool)
{
    const int worthwhile = size.width() * size.height() / kLeastBand;
    return std::clamp(worthwhile, 1, std::min(pool.maxThreadCount(), size.height()));
}

class PictureInBands
{
public:
    PictureInBands(
        QSize whole, QSizeF points, const QRect &part, std::function<void(QPainter &)> paint)
        : m_picture(part.size(), QImage::Format_ARGB32_Premultiplied)
        , m_bits(m_picture.bits())
        , m_origin(part.topLeft())
        , m_scale(QTransform::fromScale(
              whole.width() / points.width(), whole.height() / points.height()))
        , m_paint(std::move(paint))
    { }

    [[nodiscard]] bool isNull() const { return m_picture.isNull(); }
    [[nodiscard]] std::shared_future<QImage> future() { return m_done.get_future().share(); }

    void setBands(int count) { m_bandsLeft = count; }
    void paintBand(int from, int to)
    {
        paintRows(from, to);
        if (--m_bandsLeft == 0)
            finish();
    }
    void finish() { m_done.set_value(m_picture); }

private:
    void paintRows(int from, int to) const
    {
        QImage band(m_bits + from * m_picture.bytesPerLine(), m_picture.width(), to - from,
            m_picture.bytesPerLine(), m_picture.format());
        band.fill(Qt::transparent);
        QPainter painter(&band);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.translate(-m_origin.x(), -m_origin.y() - from);
        painter.setTransform(m_scale, true);
        m_paint(painter);
    }

    QImage m_picture;
    uchar *m_bits; ///< nullptr where there are no pixels.
    QPoint m_origin;
    QTransform m_scale; ///< From points to pixels.
    std::function<void(QPainter &)> m_paint;
    std::atomic<int> m_bandsLeft = 0;
    std::promise<QImage> m_done;
};

} // namespace

QThreadPool &threadPool()
{
    QThreadPool &pool = *QThreadPool::globalInstance();
    pool.setExpiryTimeout(-1);
    return pool;
}

std::shared_future<QImage> paintAsync(
    QSize pixels, QSizeF points, std::function<void(QPainter &)> paint)
{
    return paintPartAsync(pixels, points, { {}, pixels }, std::move(paint));
}

std::shared_future<QImage> paintPartAsync(
    QSize pixels, QSizeF points, const QRect &part, std::function<void(QPainter &)> paint)
{
    const auto painting = std::make_shared<PictureInBands>(pixels, points, part, std::move(paint));
    std::shared_future<QImage> picture = painting->future();
    if (painting->isNull()) {
        painting->finish();
        return picture;
    }

    QThreadPool &pool = threadPool();
    const int height = part.height();
    const int bands = bandCount(part.size(), pool);
    painting->setBands(bands);
    for (int band = 0; band < bands; ++band) {
        pool.start([painting, from = band * height / bands, to = (band + 1) * height / bands] {
            painting->paintBand(from, to);
        });
    }
    return picture;
}

} // namespace Painting
