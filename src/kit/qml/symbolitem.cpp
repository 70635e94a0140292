#include "symbolitem.h"

#include <QFont>
#include <QPainter>

namespace {

// A symbol's grid has a margin, so that beside text of n points it needs a little more.
constexpr double kSizePerPoint = 1.3;

Symbols::Weight symbolWeight(int fontWeight)
{
    if (fontWeight >= QFont::Black)
        return Symbols::Weight::Black;
    if (fontWeight >= QFont::ExtraBold)
        return Symbols::Weight::Heavy;
    if (fontWeight >= QFont::Bold)
        return Symbols::Weight::Bold;
    if (fontWeight >= QFont::DemiBold)
        return Symbols::Weight::Semibold;
    if (fontWeight >= QFont::Medium)
        return Symbols::Weight::Medium;
    return Symbols::Weight::Regular;
}

} // namespace

SymbolItem::SymbolItem(QQuickItem *parent)
    : PaintedItem(parent)
{
    setPointSize(12);
}

void SymbolItem::setPointSize(qreal size)
{
    setImplicitSize(qRound(size * kSizePerPoint), qRound(size * kSizePerPoint));
    set(m_pointSize, size);
}

void SymbolItem::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    Symbols::paint(*painter, m_name, boundingRect(), m_ink, symbolWeight(m_weight));
}
