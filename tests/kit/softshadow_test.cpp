// What a shadow looks like in a window.

#include "kit/qml/softshadow.h"

#include <QQuickWindow>

#include <gtest/gtest.h>

namespace {

constexpr QRect kShape(40, 40, 400, 300);
constexpr int kBlur = 12;

// The shadow of kShape on white.
QImage pictureOf(bool hollow)
{
    QQuickWindow window;
    window.resize(480, 380);
    window.setColor(Qt::white);
    SoftShadow shadow;
    shadow.setParentItem(window.contentItem());
    shadow.setPosition(kShape.topLeft());
    shadow.setSize(kShape.size());
    shadow.setRadius(20);
    shadow.setBlur(kBlur);
    shadow.setHollow(hollow);
    return window.grabWindow();
}

} // namespace

TEST(SoftShadow, SpreadsByItsBlur)
{
    const QImage picture = pictureOf(false);
    const auto level = [&picture](int x, int y) { return qGray(picture.pixel(x, y)); };
    EXPECT_EQ(level(kShape.left() - kBlur - 1, kShape.center().y()), 255);
    EXPECT_NEAR(level(kShape.left(), kShape.center().y()), 127, 16);
    EXPECT_EQ(level(kShape.left() + kBlur + 1, kShape.center().y()), 0);
    EXPECT_EQ(level(kShape.center().x(), kShape.center().y()), 0);
}

TEST(SoftShadow, WhenHollowIsTheSameAroundItsEdgeAndNothingInside)
{
    const QImage whole = pictureOf(false);
    const QImage hollow = pictureOf(true);
    const QMargins reach(kBlur, kBlur, kBlur, kBlur);
    const QRect hidden = kShape.marginsRemoved(reach);
    for (int y = 0; y < whole.height(); ++y) {
        for (int x = 0; x < whole.width(); ++x) {
            if (!hidden.contains(x, y))
                ASSERT_EQ(hollow.pixel(x, y), whole.pixel(x, y)) << x << ", " << y;
        }
    }
    EXPECT_EQ(qGray(hollow.pixel(kShape.center())), 255);
    EXPECT_EQ(qGray(hollow.pixel(kShape.center().x(), hidden.top())), 255);
}
