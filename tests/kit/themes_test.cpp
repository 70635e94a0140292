#include "kit/themes.h"

#include "kit/kit.h"
#include "kit/preferences.h"
#include "kit/printing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

using RGB = CRVNTheme::RGB;
using Family = CRVNTheme::Family;

constexpr RGB kWhite{ 1, 1, 1 };
constexpr RGB kBlack{ 0, 0, 0 };

// Taken before any test sets a default of its own.
const QString kInitialDefaultID = CRVNThemes::defaultID();

QStringList idsOf(const QList<CRVNTheme> &themes)
{
    QStringList ids;
    for (const CRVNTheme &theme : themes)
        ids.append(theme.id);
    return ids;
}

CRVNTheme themeWithID(const QString &id)
{
    CRVNTheme theme = CRVNThemes::builtIn().first();
    theme.id = id;
    theme.name = u"A theme named "_s + id;
    return theme;
}

// Selection and default belong to the process. Every test begins with a user who has never chosen.
class Themes : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Preferences::shared().keepInMemory();
        CRVNThemes::setDefaultID(kInitialDefaultID);
    }
};

} // namespace

TEST(ThemeColor, IsGivenAndNeverBlackByOmission)
{
    EXPECT_FALSE(std::is_default_constructible_v<RGB>);
    EXPECT_FALSE(std::is_default_constructible_v<CRVNTheme>);
}

TEST(ThemeColor, TakesItsComponentsFromTheBytesOfAHexNumber)
{
    EXPECT_EQ(RGB(0x8A6420u), RGB(138 / 255.0, 100 / 255.0, 32 / 255.0));
    EXPECT_EQ(RGB(0x000000u), kBlack);
    EXPECT_EQ(RGB(0xFFFFFFu), kWhite);
}

TEST(ThemeColor, IgnoresWhatAHexNumberHoldsAboveItsThreeBytes)
{
    EXPECT_EQ(RGB(0xFF8A6420u), RGB(0x8A6420u));
}

TEST(ThemeColor, IsEqualOnlyIfAllThreeComponentsAre)
{
    const RGB color(0.1, 0.2, 0.3);
    EXPECT_EQ(color, RGB(0.1, 0.2, 0.3));
    EXPECT_NE(color, RGB(0.11, 0.2, 0.3));
    EXPECT_NE(color, RGB(0.1, 0.21, 0.3));
    EXPECT_NE(color, RGB(0.1, 0.2, 0.31));
}

TEST(ThemeColor, MixesFromTheFirstColorToTheSecond)
{
    EXPECT_EQ(RGB::mix(kBlack, kWhite, 0), kBlack);
    EXPECT_EQ(RGB::mix(kBlack, kWhite, 1), kWhite);
    const RGB mixed = RGB::mix(RGB(0.2, 0.4, 0.8), RGB(0.6, 0.4, 0), 0.25);
    EXPECT_DOUBLE_EQ(mixed.r, 0.3);
    EXPECT_DOUBLE_EQ(mixed.g, 0.4);
    EXPECT_DOUBLE_EQ(mixed.b, 0.6);
}

TEST(ThemeColor, BecomesAnOpaqueColorUnlessAskedOtherwise)
{
    EXPECT_EQ(RGB(0x8A6420u).color().name(QColor::HexArgb), u"#ff8a6420"_s);
    EXPECT_EQ(kWhite.color(0.5).name(QColor::HexArgb), u"#80ffffff"_s);
    EXPECT_EQ(RGB(0x8A6420u).color().spec(), QColor::Rgb);
}

TEST(Luminance, RunsFromBlackToWhite)
{
    EXPECT_DOUBLE_EQ(kBlack.luminance(), 0);
    EXPECT_DOUBLE_EQ(kWhite.luminance(), 1);
}

TEST(Luminance, WeighsGreenMostAndBlueLeast)
{
    EXPECT_DOUBLE_EQ(RGB(1, 0, 0).luminance(), 0.2126);
    EXPECT_DOUBLE_EQ(RGB(0, 1, 0).luminance(), 0.7152);
    EXPECT_DOUBLE_EQ(RGB(0, 0, 1).luminance(), 0.0722);
}

TEST(Luminance, OfHalfGrayIsLittleMoreThanAFifth)
{
    EXPECT_NEAR(RGB(0x808080u).luminance(), 0.21586, 0.000005);
}

TEST(Luminance, IsLinearUpToItsThresholdAndAPowerAboveIt)
{
    // 0.04 lies between the threshold used here and the 0.04045 of sRGB itself.
    const auto gray = [](double v) { return RGB(v, v, v).luminance(); };
    EXPECT_DOUBLE_EQ(gray(0.03928), 0.03928 / 12.92);
    const double above = std::nextafter(0.03928, 1.0);
    EXPECT_DOUBLE_EQ(gray(above), std::pow((above + 0.055) / 1.055, 2.4));
    EXPECT_DOUBLE_EQ(gray(0.04), std::pow(0.095 / 1.055, 2.4));
}

TEST(Contrast, OfWhiteAndBlackIsTwentyOne)
{
    EXPECT_DOUBLE_EQ(RGB::contrast(kWhite, kBlack), 21);
}

TEST(Contrast, OfAColorWithItselfIsOne)
{
    for (const CRVNTheme &theme : CRVNThemes::builtIn())
        EXPECT_DOUBLE_EQ(RGB::contrast(theme.accent, theme.accent), 1);
}

TEST(Contrast, DoesNotDependOnTheOrder)
{
    for (const CRVNTheme &theme : CRVNThemes::builtIn())
        EXPECT_EQ(RGB::contrast(theme.bg, theme.text), RGB::contrast(theme.text, theme.bg));
}

TEST(Contrast, OfWhiteOnTheAccentOfRoseGoldIsWeak)
{
    EXPECT_NEAR(RGB::contrast(kWhite, RGB(0xE0789Au)), 2.87, 0.005);
}

TEST(Families, HaveTheirRawTexts)
{
    EXPECT_EQ(familyName(Family::masculine), u"masculine"_s);
    EXPECT_EQ(familyName(Family::feminine), u"feminine"_s);
    EXPECT_EQ(familyName(Family::black), u"black"_s);
    EXPECT_EQ(familyName(Family::gray), u"gray"_s);
    EXPECT_EQ(familyName(Family::extra), u"extra"_s);
}

TEST_F(Themes, OfTheKitAreSix)
{
    struct Row {
        QString id;
        QString name;
        Family family;
        quint32 bg, panelTop, panelBottom, text, dim, accent;
    };
    const QList<Row> table = {
        { u"cobalt-gunmetal"_s, u"Cobalt Gunmetal"_s, Family::masculine, 0x14181F, 0x353C48,
            0x1C2129, 0xF2F5FA, 0xA3AEC0, 0x2F7BF2 },
        { u"candy-red-titanium"_s, u"Candy Red Titanium"_s, Family::masculine, 0x1A1616, 0x403736,
            0x231D1D, 0xFAF3F2, 0xC2AAA7, 0xD3262E },
        { u"rose-gold"_s, u"Rose Gold"_s, Family::feminine, 0x24161D, 0x4A3039, 0x2C1B23, 0xFFF2F5,
            0xD6AFBC, 0xE0789A },
        { u"lavender-pearl"_s, u"Lavender Pearl"_s, Family::feminine, 0x1C1726, 0x40375A, 0x241D33,
            0xF6F2FF, 0xBDB1DA, 0x9B7BE8 },
        { u"midnight-black"_s, u"Midnight Black"_s, Family::black, 0x050506, 0x26272B, 0x0E0E10,
            0xFFFFFF, 0x9C9EA6, 0x5AA9FF },
        { u"brushed-gray"_s, u"Brushed Gray"_s, Family::gray, 0x3A3D42, 0x6A6E75, 0x45484E,
            0xFFFFFF, 0xD9DCE1, 0x1F6FD1 },
    };
    const QList<CRVNTheme> &themes = CRVNThemes::builtIn();
    ASSERT_EQ(themes.size(), table.size());
    for (qsizetype i = 0; i < table.size(); ++i) {
        const Row &row = table.at(i);
        const CRVNTheme &theme = themes.at(i);
        SCOPED_TRACE(qPrintable(row.id));
        EXPECT_EQ(theme.id, row.id);
        EXPECT_EQ(theme.name, row.name);
        EXPECT_EQ(theme.family, row.family);
        EXPECT_EQ(theme.bg, RGB(row.bg));
        EXPECT_EQ(theme.panelTop, RGB(row.panelTop));
        EXPECT_EQ(theme.panelBottom, RGB(row.panelBottom));
        EXPECT_EQ(theme.text, RGB(row.text));
        EXPECT_EQ(theme.dim, RGB(row.dim));
        EXPECT_EQ(theme.accent, RGB(row.accent));
    }
}

TEST_F(Themes, OfTheKitCanBeReadOnTheirOwnGround)
{
    for (const CRVNTheme &theme : CRVNThemes::builtIn()) {
        SCOPED_TRACE(qPrintable(theme.id));
        EXPECT_GE(RGB::contrast(theme.text, theme.bg), 7);
        EXPECT_GE(RGB::contrast(theme.text, theme.panelBottom), 7);
        EXPECT_GE(RGB::contrast(theme.dim, theme.bg), 4.5);
        EXPECT_GE(RGB::contrast(theme.dim, theme.panelBottom), 4.5);
    }
}

TEST_F(Themes, AreTheSameIfTheirIDsAre)
{
    CRVNTheme painted = themeWithID(u"one"_s);
    painted.accent = kWhite;
    painted.name = u"Another name"_s;
    EXPECT_EQ(painted, themeWithID(u"one"_s));
    EXPECT_NE(themeWithID(u"one"_s), themeWithID(u"One"_s));
}

TEST_F(Themes, BeginWithTheBuiltInOnes)
{
    EXPECT_EQ(CRVNThemes::all().first(6), CRVNThemes::builtIn());
}

TEST_F(Themes, RegisteredAreAddedAtTheEndInTheirOrder)
{
    const QStringList before = idsOf(CRVNThemes::all());
    CRVNThemes::registerThemes({ themeWithID(u"zinc"_s), themeWithID(u"alloy"_s) });
    const QStringList added
        = before.contains(u"zinc"_s) ? QStringList() : QStringList{ u"zinc"_s, u"alloy"_s };
    EXPECT_EQ(idsOf(CRVNThemes::all()), before + added);
    EXPECT_TRUE(CRVNThemes::all().contains(themeWithID(u"zinc"_s)));
}

TEST_F(Themes, RegisteredTwiceAreThereOnce)
{
    CRVNThemes::registerThemes({ themeWithID(u"copper"_s), themeWithID(u"copper"_s) });
    const QStringList once = idsOf(CRVNThemes::all());
    EXPECT_EQ(once.count(u"copper"_s), 1);
    CRVNThemes::registerThemes({ themeWithID(u"copper"_s) });
    EXPECT_EQ(idsOf(CRVNThemes::all()), once);
}

TEST_F(Themes, RegisteredUnderATakenIDChangeNothing)
{
    const QStringList before = idsOf(CRVNThemes::all());
    CRVNTheme impostor = themeWithID(u"rose-gold"_s);
    impostor.accent = kBlack;
    CRVNThemes::registerThemes({ impostor });
    EXPECT_EQ(idsOf(CRVNThemes::all()), before);
    EXPECT_EQ(CRVNThemes::named(u"rose-gold"_s).name, u"Rose Gold"_s);
    EXPECT_EQ(CRVNThemes::named(u"rose-gold"_s).accent, RGB(0xE0789Au));
}

TEST_F(Themes, RegisteredAsAnEmptyListChangeNothing)
{
    const QStringList before = idsOf(CRVNThemes::all());
    CRVNThemes::registerThemes({});
    EXPECT_EQ(idsOf(CRVNThemes::all()), before);
}

TEST_F(Themes, OneOfATakenIDDoesNotKeepOutThoseBehindIt)
{
    CRVNThemes::registerThemes({ themeWithID(u"rose-gold"_s), themeWithID(u"tin"_s) });
    EXPECT_EQ(idsOf(CRVNThemes::all()).count(u"tin"_s), 1);
}

TEST_F(Themes, HaveCobaltGunmetalAsDefaultUntilTheApplicationSetsItsOwn)
{
    EXPECT_EQ(kInitialDefaultID, u"cobalt-gunmetal"_s);
}

TEST_F(Themes, AreFoundByTheirExactID)
{
    for (const CRVNTheme &theme : CRVNThemes::builtIn())
        EXPECT_EQ(CRVNThemes::named(theme.id).name, theme.name);
    CRVNThemes::registerThemes({ themeWithID(u"nickel"_s) });
    EXPECT_EQ(CRVNThemes::named(u"nickel"_s).id, u"nickel"_s);
}

TEST_F(Themes, UnknownIDGivesTheDefault)
{
    CRVNThemes::setDefaultID(u"lavender-pearl"_s);
    for (const QString &id : { u"no-such-theme"_s, u""_s, u"Rose-Gold"_s, u"rose-gold "_s })
        EXPECT_EQ(CRVNThemes::named(id).id, u"lavender-pearl"_s) << qPrintable(id);
}

TEST_F(Themes, UnknownIDAndUnknownDefaultGiveTheFirst)
{
    CRVNThemes::setDefaultID(u"gone"_s);
    EXPECT_EQ(CRVNThemes::named(u"no-such-theme"_s).id, u"cobalt-gunmetal"_s);
}

TEST_F(Themes, KnownIDIsFoundWhateverTheDefault)
{
    CRVNThemes::setDefaultID(u"gone"_s);
    EXPECT_EQ(CRVNThemes::named(u"brushed-gray"_s).id, u"brushed-gray"_s);
}

TEST_F(Themes, SelectionOfAUserWhoHasNeverChosenFollowsTheDefault)
{
    EXPECT_EQ(CRVNThemes::currentID(), u"cobalt-gunmetal"_s);
    CRVNThemes::setDefaultID(u"midnight-black"_s);
    EXPECT_EQ(CRVNThemes::currentID(), u"midnight-black"_s);
    EXPECT_EQ(CRVNThemes::current().id, u"midnight-black"_s);
    EXPECT_FALSE(Preferences::shared().contains(u"crvn.theme"_s));
}

TEST_F(Themes, SelectionIsKeptAsOnePreference)
{
    CRVNThemes::setCurrentID(u"rose-gold"_s);
    EXPECT_EQ(Preferences::shared().text(u"crvn.theme"_s), u"rose-gold"_s);
    EXPECT_EQ(CRVNThemes::currentID(), u"rose-gold"_s);
    EXPECT_EQ(CRVNThemes::current().name, u"Rose Gold"_s);
}

TEST_F(Themes, SelectionIsReadAfreshEachTime)
{
    EXPECT_EQ(CRVNThemes::current().id, u"cobalt-gunmetal"_s);
    Preferences::shared().set(u"crvn.theme"_s, u"brushed-gray"_s);
    EXPECT_EQ(CRVNThemes::current().id, u"brushed-gray"_s);
    Preferences::shared().remove(u"crvn.theme"_s);
    EXPECT_EQ(CRVNThemes::current().id, u"cobalt-gunmetal"_s);
}

TEST_F(Themes, SelectionThatNamesNoThemeKeepsItsIDAndShowsTheDefault)
{
    CRVNThemes::setDefaultID(u"midnight-black"_s);
    CRVNThemes::setCurrentID(u"a-theme-of-old"_s);
    EXPECT_EQ(CRVNThemes::currentID(), u"a-theme-of-old"_s);
    EXPECT_EQ(CRVNThemes::current().id, u"midnight-black"_s);
}

TEST_F(Themes, EmptySelectionIsASelectionOfNoTheme)
{
    CRVNThemes::setDefaultID(u"midnight-black"_s);
    CRVNThemes::setCurrentID({});
    EXPECT_EQ(CRVNThemes::currentID(), QString());
    EXPECT_EQ(CRVNThemes::current().id, u"midnight-black"_s);
}

TEST_F(Themes, ForTheKitAreSixOpaqueColorsAndARim)
{
    for (const CRVNTheme &theme : CRVNThemes::builtIn()) {
        SCOPED_TRACE(qPrintable(theme.id));
        const CNKitTheme kit = kitTheme(theme);
        EXPECT_EQ(kit.bg, theme.bg.color());
        EXPECT_EQ(kit.text, theme.text.color());
        EXPECT_EQ(kit.dim, theme.dim.color());
        EXPECT_EQ(kit.accent, theme.accent.color());
        EXPECT_EQ(kit.panelTop, theme.panelTop.color());
        EXPECT_EQ(kit.panelBottom, theme.panelBottom.color());
        EXPECT_EQ(kit.bg.alpha(), 255);
        EXPECT_EQ(kit.rim.name(), u"#ffffff"_s);
        EXPECT_NEAR(kit.rim.alphaF(), 0.25, 1e-4);
    }
}

TEST_F(Themes, OfTheKitHostIsTheSelectedOne)
{
    CRVNThemes::setCurrentID(u"rose-gold"_s);
    EXPECT_EQ(CRVNKitHost::theme(), kitTheme(CRVNThemes::named(u"rose-gold"_s)));
    CRVNThemes::setCurrentID(u"brushed-gray"_s);
    EXPECT_EQ(CRVNKitHost::theme(), kitTheme(CRVNThemes::named(u"brushed-gray"_s)));
}

TEST_F(Themes, OfTheKitHostCanComeFromTheApplication)
{
    const CNKitTheme own{ .bg = Qt::red };
    CRVNKitHost::setTheme([own] { return own; });
    EXPECT_EQ(CRVNKitHost::theme(), own);
    CRVNKitHost::setTheme([] { return kitTheme(CRVNThemes::current()); });
}

TEST_F(Themes, OfAnApplicationArriveWithItsName)
{
    CRVNKit::install({ .name = u"A Program"_s, .extraThemes = { themeWithID(u"its-own"_s) } });
    const QStringList installed = idsOf(CRVNThemes::all());
    EXPECT_EQ(CRVNKitHost::appName(), u"A Program"_s);
    EXPECT_EQ(installed.count(u"its-own"_s), 1);

    CRVNKit::install({ .name = u"A Program"_s, .extraThemes = { themeWithID(u"its-own"_s) } });
    EXPECT_EQ(idsOf(CRVNThemes::all()), installed);
}
