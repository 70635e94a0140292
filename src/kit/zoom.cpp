#include "kit/zoom.h"

#include "kit/preferences.h"

#include <algorithm>
#include <cmath>

namespace CNZoom {

double clamp(double zoom)
{
    if (std::isnan(zoom))
        return 1;
    return std::clamp(std::round(zoom * 100) / 100, min, max);
}

double value()
{
    const double stored = Preferences::shared().number(key);
    return stored == 0 ? 1 : clamp(stored);
}

void setValue(double zoom)
{
    Preferences::shared().set(key, clamp(zoom));
}

QString levelTitle(int percent)
{
    return QString::number(percent) + u'%';
}

Layout layout(QSizeF offered, double zoom, QSizeF minimum)
{
    const QSizeF logical = (offered / zoom).expandedTo(minimum);
    const QSizeF scaled = logical * zoom;
    // A whole point of slack: 920 / 1.15 · 1.15 must not light up a scroll bar.
    const bool scrolls
        = offered.width() + 1 < scaled.width() || offered.height() + 1 < scaled.height();
    return { logical, scaled, scrolls };
}

} // namespace CNZoom
