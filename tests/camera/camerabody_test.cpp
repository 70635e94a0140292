// What the camera's body looks like.

#include "camera/camerabody.h"
#include "kit/gradients.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace {

constexpr QSize kSize(600, 400);

QList<CRVNTheme> themes()
{
    return CRVNThemes::builtIn() + HVThemes::extras();
}

QImage body(const HVColors &colors)
{
    QImage picture(kSize, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    CameraBody::paintBody(painter, kSize, colors);
    return picture;
}

// The body without its leather.
QImage metal(const HVColors &c)
{
    QImage picture(kSize, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    painter.fillRect(
        picture.rect(), Painting::verticalBrush(picture.rect(), c.bodyHi(), c.body(), c.bodyLo()));
    return picture;
}

} // namespace

TEST(Leather, IsLitMoreThanShadedButNotByFarOnEveryBody)
{
    for (const CRVNTheme &theme : themes()) {
        SCOPED_TRACE(qPrintable(theme.id));
        const HVColors colors(theme);
        const QImage shown = body(colors);
        const QImage ground = metal(colors);
        int lit = 0;
        int shaded = 0;
        // Where the leather is seen best: beside and above the display.
        for (int y = 20; y < kSize.height() / 2; ++y) {
            for (int x = 60; x < kSize.width() - 60; ++x) {
                const int change = qGray(shown.pixel(x, y)) - qGray(ground.pixel(x, y));
                (change > 0 ? lit : shaded) += std::abs(change);
            }
        }
        EXPECT_GT(lit, shaded);
        EXPECT_LE(lit, 4 * shaded);
    }
}
