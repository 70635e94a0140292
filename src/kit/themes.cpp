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
    // Columns: id, name, family, bg, panelTop, panelBottom, text, dim, accent.
    static const QList<CRVNTheme> themes = {
        { u"cobalt-gunmetal"_s, u"Cobalt Gunmetal"_s, Family::masculine, RGB(0x14181F),
            RGB(0x353C48), RGB(0x1C2129), RGB(0xF2F5FA), RGB(0xA3AEC0), RGB(0x2F7BF2) },
        { u"candy-red-titanium"_s, u"Candy Red Titanium"_s, Family::masculine, RGB(0x1A1616),
            RGB(0x403736), RGB(0x231D1D), RGB(0xFAF3F2), RGB(0xC2AAA7), RGB(0xD3262E) },
        { u"rose-gold"_s, u"Rose Gold"_s, Family::feminine, RGB(0x24161D), RGB(0x4A3039),
            RGB(0x2C1B23), RGB(0xFFF2F5), RGB(0xD6AFBC), RGB(0xE0789A) },
        { u"lavender-pearl"_s, u"Lavender Pearl"_s, Family::feminine, RGB(0x1C1726), RGB(0x40375A),
            RGB(0x241D33), RGB(0xF6F2FF), RGB(0xBDB1DA), RGB(0x9B7BE8) },
        { u"midnight-black"_s, u"Midnight Black"_s, Family::black, RGB(0x050506), RGB(0x26272B),
            RGB(0x0E0E10), RGB(0xFFFFFF), RGB(0x9C9EA6), RGB(0x5AA9FF) },
        { u"brushed-gray"_s, u"Brushed Gray"_s, Family::gray, RGB(0x3A3D42), RGB(0x6A6E75),
            RGB(0x45484E), RGB(0xFFFFFF), RGB(0xD9DCE1), RGB(0x1F6FD1) },
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
