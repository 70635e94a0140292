// Lets GoogleTest's messages show colors and places, and texts as support/qtprinters.h has them.
#pragma once

#include "support/qtprinters.h"

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QStringList>

inline void PrintTo(const QStringList &texts, std::ostream *out)
{
    *out << '[' << qPrintable(texts.join(QStringLiteral(" | "))) << ']';
}
inline void PrintTo(const QColor &color, std::ostream *out)
{
    *out << qPrintable(color.isValid() ? color.name(QColor::HexArgb) : QStringLiteral("no color"));
}
inline void PrintTo(const QPointF &point, std::ostream *out)
{
    *out << '(' << point.x() << ", " << point.y() << ')';
}
inline void PrintTo(const QSizeF &size, std::ostream *out)
{
    *out << size.width() << " x " << size.height();
}
inline void PrintTo(const QRectF &area, std::ostream *out)
{
    PrintTo(area.size(), out);
    *out << " at ";
    PrintTo(area.topLeft(), out);
}
