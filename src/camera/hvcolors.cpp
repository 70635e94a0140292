#include "camera/hvcolors.h"

using namespace Qt::StringLiterals;

namespace {

using RGB = CRVNTheme::RGB;

constexpr RGB kWhite{ 1, 1, 1 };
constexpr RGB kBlack{ 0, 0, 0 };

} // namespace

const QList<CRVNTheme> &HVThemes::extras()
{
    static const QList<CRVNTheme> themes = {
        {
            .id = brassID,
            .name = u"Medium Format Black & Brass"_s,
            .family = CRVNTheme::Family::extra,
            .bg = RGB(0x0C0B0A),
            .panelTop = RGB(0x2E2A25),
            .panelBottom = RGB(0x161412),
            .text = RGB(0xFAF6EE),
            .dim = RGB(0xC9BDA6),
            .accent = RGB(0x8A6420),
        },
    };
    return themes;
}

HVColors::HVColors()
    : HVColors(CRVNThemes::current())
{ }

HVColors::HVColors(const CRVNTheme &theme)
    : t(theme)
{ }

RGB HVColors::bodyRGB() const
{
    return RGB::mix(t.bg, kBlack, t.family == CRVNTheme::Family::gray ? 0.25 : 0.35);
}

RGB HVColors::bodyHiRGB() const
{
    return RGB::mix(bodyRGB(), kWhite, 0.16);
}
RGB HVColors::bodyLoRGB() const
{
    return RGB::mix(bodyRGB(), kBlack, 0.6);
}
RGB HVColors::leatherRGB() const
{
    return RGB::mix(bodyRGB(), kWhite, 0.07);
}
RGB HVColors::engraveRGB() const
{
    return RGB::mix(t.dim, kWhite, 0.25);
}
RGB HVColors::glowRGB() const
{
    return RGB::mix(t.accent, kWhite, 0.42);
}

QColor levelColor(const QString &level, const HVColors &c)
{
    const QString word = level.toLower();
    if (word == "beginner"_L1)
        return c.good();
    if (word == "intermediate"_L1)
        return c.glow();
    if (word == "advanced"_L1 || word == "professional"_L1)
        return c.warn();
    return c.oledDim();
}
