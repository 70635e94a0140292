#include "kit/fonts.h"

#include <QFontDatabase>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QString firstInstalled(const QStringList &wanted, QFontDatabase::SystemFont fallback)
{
    // Not hasFamily(), which looks for a stand-in for each family that is missing; a start would
    // wait for that.
    const QStringList installed = QFontDatabase::families();
    for (const QString &family : wanted) {
        if (installed.contains(family))
            return family;
    }
    return QFontDatabase::systemFont(fallback).family();
}

const QString &roundedFamily()
{
#ifdef Q_OS_MACOS
    static const QString family = u".AppleSystemUIFontRounded"_s;
#else
    static const QString family
        = firstInstalled({ u"Nunito"_s, u"Inter"_s, u"DejaVu Sans"_s }, QFontDatabase::GeneralFont);
#endif
    return family;
}

const QString &monospacedFamily()
{
    static const QString family
        = firstInstalled({ u"JetBrains Mono"_s, u"DejaVu Sans Mono"_s }, QFontDatabase::FixedFont);
    return family;
}

QFont font(const QString &family, double size, QFont::Weight weight)
{
    QFont result(family);
    result.setPointSizeF(size);
    result.setWeight(weight);
    return result;
}

} // namespace

namespace Fonts {

QFont rounded(double size, QFont::Weight weight, double tracking)
{
    QFont result = font(roundedFamily(), size, weight);
    if (tracking != 0)
        result.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    return result;
}

QFont monospaced(double size, QFont::Weight weight)
{
    return font(monospacedFamily(), size, weight);
}

QFont inPixels(const QFont &font)
{
    QFont result = font;
    result.setPixelSize(qRound(font.pointSizeF()));
    return result;
}

} // namespace Fonts
