// Interface zoom: 85 % to 200 %, kept as one preference, and the arithmetic of the zoomed window.
//
// Zooming lays the interface out in a smaller or larger logical window and magnifies the result,
// so that no layout code knows of it. Main thread only.
#pragma once

#include <QSizeF>
#include <QString>

#include <array>

namespace CNZoom {

inline const QString key = QStringLiteral("crvn.zoom");

inline constexpr double min = 0.85;
inline constexpr double max = 2.0;
inline constexpr double step = 0.15;

/// What the menu offers, in percent.
inline constexpr std::array levels = { 85, 100, 115, 130, 150, 175, 200 };

/// Rounded to whole percents and held between min and max; what is no number gives 1.
[[nodiscard]] double clamp(double zoom);

/// The stored zoom, clamped. Nothing stored, or a stored 0, means 1.
[[nodiscard]] double value();
void setValue(double zoom);

/// "115%".
[[nodiscard]] QString levelTitle(int percent);

/// How a window shows an interface that is magnified by a zoom.
struct Layout {
    QSizeF logical;       ///< What the interface is laid out in, before magnification.
    QSizeF scaled;        ///< Its size on the screen; at least as large as the window.
    bool scrolls = false; ///< Larger than the window by more than a point, on either axis.

    friend bool operator==(const Layout &, const Layout &) = default;
};

/// The layout at `zoom` in a window of size `offered`, for an interface that needs `minimum`.
[[nodiscard]] Layout layout(QSizeF offered, double zoom, QSizeF minimum);

} // namespace CNZoom
