// What a shadow looks like in a window.

#include "kit/qml/softshadow.h"

#include <QQuickWindow>

#include <gtest/gtest.h>

namespace {

constexpr QRect kShape(40, 40, 400, 300);
constexpr int kBlur = 12;

// The shadow of kShape on white.
QImage picture()
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
    return window.grabWindow();
}

} // namespace

TEST(SoftShadow, SpreadsByItsBlur)
{
    const QImage shadow = picture();
    const auto level = [&shadow](int x, int y) { return qGray(shadow.pixel(x, y)); };
    EXPECT_EQ(level(kShape.left() - kBlur - 1, kShape.center().y()), 255);
    EXPECT_NEAR(level(kShape.left(), kShape.center().y()), 127, 16);
    EXPECT_EQ(level(kShape.left() + kBlur + 1, kShape.center().y()), 0);
    EXPECT_EQ(level(kShape.center().x(), kShape.center().y()), 0);
}
