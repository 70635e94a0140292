#include "kit/themes.h"

#include "kit/preferences.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using RGB = CRVNTheme::RGB;
using Family = CRVNTheme::Family;

QList<CRVNTheme> &extras()
{
    static QList<CRVNTheme> themes;
    return themes;
}

QString &storedDefaultID()
{
    static QString id = u"cobalt-gunmetal"_s;
    return id;
}

double linear(double v)
{
    return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

} // namespace

double RGB::luminance() const
{
    return 0.2126 * linear(r) + 0.7152 * linear(g) + 0.0722 * linear(b);
}

double RGB::contrast(const RGB &a, const RGB &b)
{
    const auto [darker, lighter] = std::minmax({ a.luminance(), b.luminance() });
    return (lighter + 0.05) / (darker + 0.05);
}

RGB CRVNTheme::lightened(const RGB &ink, const RGB &ground, double ratio)
{
    constexpr int kSteps = 20;
    int step = 0;
    while (step < kSteps
        && RGB::contrast(RGB::mix(ink, { 1, 1, 1 }, double(step) / kSteps), ground) < ratio)
        ++step;
    return RGB::mix(ink, { 1, 1, 1 }, double(step) / kSteps);
}

QColor RGB::color(double opacity) const
{
    return QColor::fromRgbF(float(r), float(g), float(b), float(opacity));
}

QString familyName(Family family)
{
    switch (family) {
    case Family::masculine:
        return u"masculine"_s;
    case Family::feminine:
        return u"feminine"_s;
    case Family::black:
        return u"black"_s;
    case Family::gray:
        return u"gray"_s;
    case Family::extra:
        return u"extra"_s;
    }
    Q_UNREACHABLE();
}

namespace CRVNThemes {

const QList<CRVNTheme> &builtIn()
{
    static const QList<CRVNTheme> themes = {
        {
            .id = u"cobalt-gunmetal"_s,
            .name = u"Cobalt Gunmetal"_s,
            .family = Family::masculine,
            .bg = RGB(0x14181F),
            .panelTop = RGB(0x353C48),
            .panelBottom = RGB(0x1C2129),
            .text = RGB(0xF2F5FA),
            .dim = RGB(0xA3AEC0),
            .accent = RGB(0x2F7BF2),
        },
        {
            .id = u"candy-red-titanium"_s,
            .name = u"Candy Red Titanium"_s,
            .family = Family::masculine,
            .bg = RGB(0x1A1616),
            .panelTop = RGB(0x403736),
            .panelBottom = RGB(0x231D1D),
            .text = RGB(0xFAF3F2),
            .dim = RGB(0xC2AAA7),
            .accent = RGB(0xD3262E),
        },
        {
            .id = u"rose-gold"_s,
            .name = u"Rose Gold"_s,
            .family = Family::feminine,
            .bg = RGB(0x24161D),
            .panelTop = RGB(0x4A3039),
            .panelBottom = RGB(0x2C1B23),
            .text = RGB(0xFFF2F5),
            .dim = RGB(0xD6AFBC),
            .accent = RGB(0xE0789A),
        },
        {
            .id = u"lavender-pearl"_s,
            .name = u"Lavender Pearl"_s,
            .family = Family::feminine,
            .bg = RGB(0x1C1726),
            .panelTop = RGB(0x40375A),
            .panelBottom = RGB(0x241D33),
            .text = RGB(0xF6F2FF),
            .dim = RGB(0xBDB1DA),
            .accent = RGB(0x9B7BE8),
        },
        {
            .id = u"midnight-black"_s,
            .name = u"Midnight Black"_s,
            .family = Family::black,
            .bg = RGB(0x050506),
            .panelTop = RGB(0x26272B),
            .panelBottom = RGB(0x0E0E10),
            .text = RGB(0xFFFFFF),
            .dim = RGB(0x9C9EA6),
            .accent = RGB(0x5AA9FF),
        },
        {
            .id = u"brushed-gray"_s,
            .name = u"Brushed Gray"_s,
            .family = Family::gray,
            .bg = RGB(0x3A3D42),
            .panelTop = RGB(0x6A6E75),
            .panelBottom = RGB(0x45484E),
            .text = RGB(0xFFFFFF),
            .dim = RGB(0xD9DCE1),
            .accent = RGB(0x1F6FD1),
        },
    };
    return themes;
}

QList<CRVNTheme> all()
{
    return builtIn() + extras();
}

void registerThemes(const QList<CRVNTheme> &themes)
{
    for (const CRVNTheme &theme : themes) {
        if (!all().contains(theme))
            extras().append(theme);
    }
}

QString defaultID()
{
    return storedDefaultID();
}
void setDefaultID(const QString &id)
{
    storedDefaultID() = id;
}

CRVNTheme named(const QString &id)
{
    const QList<CRVNTheme> themes = all();
    for (const QString &wanted : { id, defaultID() }) {
        const auto found = std::ranges::find(themes, wanted, &CRVNTheme::id);
        if (found != themes.end())
            return *found;
    }
    return builtIn().first();
}

QString currentID()
{
    const Preferences &preferences = Preferences::shared();
    return preferences.contains(key) ? preferences.text(key) : defaultID();
}

void setCurrentID(const QString &id)
{
    Preferences::shared().set(key, id);
}

CRVNTheme current()
{
    return named(currentID());
}

} // namespace CRVNThemes

CNKitTheme kitTheme(const CRVNTheme &theme)
{
    return {
        .bg = theme.bg.color(),
        .text = theme.text.color(),
        .dim = theme.dim.color(),
        .rim = RGB(1, 1, 1).color(0.25),
        .accent = theme.accent.color(),
        .panelTop = theme.panelTop.color(),
        .panelBottom = theme.panelBottom.color(),
    };
}
