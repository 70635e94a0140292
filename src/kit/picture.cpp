#include "kit/picture.h"

#include <QPainter>
#include <QSemaphore>
#include <QThreadPool>

#include <algorithm>

namespace {

constexpr int kLow = 40;               // rows; too few runs of pixels for a fill to be divided
constexpr int kLeastBand = 128 * 1024; // pixels

int bandCount(QSize size, const QThreadPool &pool)
{
    const int worthwhile = size.width() * size.height() / kLeastBand;
    return std::clamp(worthwhile, 1, std::min(pool.maxThreadCount(), size.height()));
}

} // namespace

QImage paintedPicture(QSize pixels, QSize points, const std::function<void(QPainter &)> &paint)
{
    QImage picture(pixels, QImage::Format_ARGB32_Premultiplied);
    uchar *const bits = picture.bits();
    if (!bits)
        return picture;

    const auto paintRows = [&](int from, int to) {
        QImage band(bits + from * picture.bytesPerLine(), picture.width(), to - from,
            picture.bytesPerLine(), picture.format());
        band.fill(Qt::transparent);
        QPainter painter(&band);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.translate(0, -from);
        painter.scale(
            double(pixels.width()) / points.width(), double(pixels.height()) / points.height());
        paint(painter);
    };

    QThreadPool &pool = *QThreadPool::globalInstance();
    const int bands = bandCount(pixels, pool);
    QSemaphore done;
    for (int band = 0; band < bands; ++band) {
        const auto paintBand = [&, band] {
            paintRows(band * pixels.height() / bands, (band + 1) * pixels.height() / bands);
            done.release();
        };
        if (pixels.height() < kLow)
            paintBand();
        else
            pool.start(paintBand);
    }
    done.acquire(bands);
    return picture;
}
