#include "camera/hvcolors.h"

#include "kit/kit.h"
#include "kit/preferences.h"
#include "kit/printing.h"

#include <QHash>
#include <QMetaProperty>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using RGB = CRVNTheme::RGB;

constexpr RGB kWhite{ 1, 1, 1 };
constexpr RGB kBlack{ 0, 0, 0 };

// What the program asks of its colors.
constexpr double kBodyText = 7;
constexpr double kOtherText = 4.5;

const CRVNTheme &brass()
{
    return HVThemes::extras().first();
}

// The seven themes that the menu offers.
QList<CRVNTheme> allThemes()
{
    return CRVNThemes::builtIn() + HVThemes::extras();
}

void expectColor(const RGB &color, double r, double g, double b)
{
    EXPECT_NEAR(color.r, r, 1e-12);
    EXPECT_NEAR(color.g, g, 1e-12);
    EXPECT_NEAR(color.b, b, 1e-12);
}

void expectColor(const QColor &color, const RGB &expected)
{
    // QColor keeps 16 bits of a component.
    EXPECT_NEAR(color.redF(), expected.r, 1.0 / 65535);
    EXPECT_NEAR(color.greenF(), expected.g, 1.0 / 65535);
    EXPECT_NEAR(color.blueF(), expected.b, 1.0 / 65535);
    EXPECT_EQ(color.alphaF(), 1);
    EXPECT_EQ(color.spec(), QColor::Rgb);
}

} // namespace

TEST(BrassTheme, IsTheApplicationsOnlyOwn)
{
    ASSERT_EQ(HVThemes::extras().size(), 1);
    EXPECT_EQ(HVThemes::brassID, u"mf-black-brass"_s);
    EXPECT_EQ(brass().id, HVThemes::brassID);
    EXPECT_EQ(brass().name, u"Medium Format Black & Brass"_s);
    EXPECT_EQ(brass().family, CRVNTheme::Family::extra);
    EXPECT_EQ(brass().bg, RGB(0x0C0B0Au));
    EXPECT_EQ(brass().panelTop, RGB(0x2E2A25u));
    EXPECT_EQ(brass().panelBottom, RGB(0x161412u));
    EXPECT_EQ(brass().text, RGB(0xFAF6EEu));
    EXPECT_EQ(brass().dim, RGB(0xC9BDA6u));
    EXPECT_EQ(brass().accent, RGB(0x8A6420u));
}

TEST(BrassTheme, HasAnIDOfItsOwn)
{
    EXPECT_FALSE(CRVNThemes::builtIn().contains(brass()));
}

TEST(BrassTheme, IsTheSeventhOnceTheApplicationIsIntroduced)
{
    CRVNKit::install({ .name = u"CRVN Halvorin"_s, .extraThemes = HVThemes::extras() });
    CRVNKit::install({ .name = u"CRVN Halvorin"_s, .extraThemes = HVThemes::extras() });
    EXPECT_EQ(CRVNThemes::all(), allThemes());
    EXPECT_EQ(CRVNThemes::all().last().name, u"Medium Format Black & Brass"_s);
}

TEST(BrassTheme, ReadsOnItsOwnGround)
{
    EXPECT_NEAR(RGB::contrast(brass().text, brass().bg), 18.2, 0.05);
    EXPECT_NEAR(RGB::contrast(brass().dim, brass().panelBottom), 9.9, 0.05);
    EXPECT_NEAR(RGB::contrast(kWhite, brass().accent), 5.35, 0.005);
    EXPECT_GE(RGB::contrast(kWhite, brass().accent), kOtherText);
}

TEST(Palette, OfBrassIsDerivedFromItsTheme)
{
    // 0C0B0A darkened by 35 %, C9BDA6 and 8A6420 lightened by 25 % and 42 %.
    const HVColors c(brass());
    expectColor(c.bodyRGB(), 12 / 255.0 * 0.65, 11 / 255.0 * 0.65, 10 / 255.0 * 0.65);
    expectColor(c.bodyHiRGB(), 0.16 + 0.84 * 12 / 255 * 0.65, 0.16 + 0.84 * 11 / 255 * 0.65,
        0.16 + 0.84 * 10 / 255 * 0.65);
    expectColor(c.bodyLoRGB(), 12 / 255.0 * 0.26, 11 / 255.0 * 0.26, 10 / 255.0 * 0.26);
    expectColor(c.leatherRGB(), 0.07 + 0.93 * 12 / 255 * 0.65, 0.07 + 0.93 * 11 / 255 * 0.65,
        0.07 + 0.93 * 10 / 255 * 0.65);
    expectColor(
        c.engraveRGB(), 0.25 + 0.75 * 201 / 255, 0.25 + 0.75 * 189 / 255, 0.25 + 0.75 * 166 / 255);
    expectColor(
        c.glowRGB(), 0.42 + 0.58 * 138 / 255, 0.42 + 0.58 * 100 / 255, 0.42 + 0.58 * 32 / 255);
    expectColor(c.accent(), RGB(0x8A6420u));
}

TEST(Palette, OfAGrayThemeHasALighterBody)
{
    // 3A3D42 darkened by 25 % only.
    const HVColors c(CRVNThemes::named(u"brushed-gray"_s));
    expectColor(c.bodyRGB(), 58 / 255.0 * 0.75, 61 / 255.0 * 0.75, 66 / 255.0 * 0.75);
    expectColor(c.bodyHiRGB(), 0.16 + 0.84 * 58 / 255 * 0.75, 0.16 + 0.84 * 61 / 255 * 0.75,
        0.16 + 0.84 * 66 / 255 * 0.75);
    expectColor(c.bodyLoRGB(), 58 / 255.0 * 0.3, 61 / 255.0 * 0.3, 66 / 255.0 * 0.3);
    expectColor(c.leatherRGB(), 0.07 + 0.93 * 58 / 255 * 0.75, 0.07 + 0.93 * 61 / 255 * 0.75,
        0.07 + 0.93 * 66 / 255 * 0.75);
    expectColor(
        c.engraveRGB(), 0.25 + 0.75 * 217 / 255, 0.25 + 0.75 * 220 / 255, 0.25 + 0.75 * 225 / 255);
    expectColor(
        c.glowRGB(), 0.42 + 0.58 * 31 / 255, 0.42 + 0.58 * 111 / 255, 0.42 + 0.58 * 209 / 255);
    expectColor(c.accent(), RGB(0x1F6FD1u));
}

TEST(Palette, FollowsTheFamilyAndNotTheColorsOfATheme)
{
    CRVNTheme painted = CRVNThemes::named(u"brushed-gray"_s);
    for (const auto family : { CRVNTheme::Family::masculine, CRVNTheme::Family::feminine,
             CRVNTheme::Family::black, CRVNTheme::Family::extra }) {
        painted.family = family;
        const RGB body = HVColors(painted).bodyRGB();
        expectColor(body, 58 / 255.0 * 0.65, 61 / 255.0 * 0.65, 66 / 255.0 * 0.65);
    }
}

TEST(Palette, HasTheSameDisplayUnderEveryBody)
{
    for (const CRVNTheme &theme : allThemes()) {
        SCOPED_TRACE(qPrintable(theme.id));
        const HVColors c(theme);
        expectColor(c.oled(), RGB(0.02, 0.027, 0.035));
        expectColor(c.oledCard(), RGB(0.055, 0.065, 0.08));
        expectColor(c.oledText(), RGB(0.93, 0.96, 0.98));
        expectColor(c.oledDim(), RGB(0.68, 0.74, 0.8));
        expectColor(c.good(), RGB(0.45, 0.9, 0.55));
        expectColor(c.warn(), RGB(1.0, 0.78, 0.35));
        expectColor(c.bad(), RGB(1.0, 0.48, 0.45));
    }
}

TEST(Palette, HandsOutItsMixturesAsOpaqueColors)
{
    for (const CRVNTheme &theme : allThemes()) {
        SCOPED_TRACE(qPrintable(theme.id));
        const HVColors c(theme);
        expectColor(c.body(), c.bodyRGB());
        expectColor(c.bodyHi(), c.bodyHiRGB());
        expectColor(c.bodyLo(), c.bodyLoRGB());
        expectColor(c.leather(), c.leatherRGB());
        expectColor(c.engrave(), c.engraveRGB());
        expectColor(c.glow(), c.glowRGB());
        expectColor(c.accent(), theme.accent);
    }
}

TEST(Palette, LaysItsTintsThinlyOverWhatIsThere)
{
    const HVColors c(brass());
    const struct {
        QColor tint;
        QColor of;
        float opacity;
    } kTints[] = {
        { c.hover(), c.glow(), 0.07f },
        { c.quiet(), c.glow(), 0.1f },
        { c.quietUnderPointer(), c.glow(), 0.2f },
        { c.track(), c.glow(), 0.12f },
        { c.divider(), c.glow(), 0.15f },
        { c.cardEdge(), c.glow(), 0.16f },
        { c.cardEdgeRaised(), c.glow(), 0.4f },
        { c.fieldEdge(), c.glow(), 0.3f },
        { c.thread(), c.glow(), 0.25f },
        { c.halo(), c.glow(), 0.25f },
        { c.haloRaised(), c.glow(), 0.45f },
        { c.titleHalo(), c.glow(), 0.5f },
        { c.buttonEdge(), c.glow(), 0.55f },
        { c.pilot(), c.accent(), 0.55f },
        { c.keyTop(), c.accent(), 0.95f },
        { c.selection(), c.accent(), 0.75f },
        { c.fieldFill(), c.oled(), 0.45f },
        { c.contents(), c.oledCard(), 0.6f },
        { c.callout(), c.warn(), 0.08f },
        { c.glassEdge(), c.glow(), 0.18f },
    };
    for (const auto &[tint, of, opacity] : kTints) {
        EXPECT_NEAR(tint.alphaF(), opacity, 1.0 / 65535);
        EXPECT_EQ(tint.rgb(), of.rgb());
    }
}

TEST(Palette, ShowsQMLItsColors)
{
    const HVColors c(brass());
    const QMetaObject &meta = HVColors::staticMetaObject;
    const auto shown = [&](const char *name) {
        return meta.property(meta.indexOfProperty(name)).readOnGadget(&c).value<QColor>();
    };
    for (int i = 0; i < meta.propertyCount(); ++i)
        EXPECT_TRUE(shown(meta.property(i).name()).isValid()) << meta.property(i).name();
    EXPECT_EQ(shown("bodyHi"), c.bodyHi());
    EXPECT_EQ(shown("bodyLo"), c.bodyLo());
    EXPECT_EQ(shown("oledDim"), c.oledDim());
    EXPECT_EQ(shown("glow"), c.glow());
    EXPECT_EQ(shown("callout"), c.callout());
}

TEST(Palette, ByDefaultIsThatOfTheSelectedTheme)
{
    Preferences::shared().keepInMemory();
    CRVNThemes::setCurrentID(u"rose-gold"_s);
    EXPECT_EQ(HVColors(), HVColors(CRVNThemes::named(u"rose-gold"_s)));
    EXPECT_EQ(HVColors().accent(), QColor(u"#E0789A"_s));
    CRVNThemes::setCurrentID(u"brushed-gray"_s);
    EXPECT_EQ(HVColors().accent(), QColor(u"#1F6FD1"_s));
    Preferences::shared().remove(CRVNThemes::key);
}

TEST(Palette, IsEqualIfItsThemeIs)
{
    EXPECT_EQ(HVColors(brass()), HVColors(brass()));
    EXPECT_NE(HVColors(brass()), HVColors(CRVNThemes::named(u"rose-gold"_s)));
}

TEST(PaletteContrast, TextReadsOnTheDisplay)
{
    EXPECT_NEAR(RGB::contrast(HVColors::oledTextRGB, HVColors::oledRGB), 18.3, 0.05);
    EXPECT_NEAR(RGB::contrast(HVColors::oledDimRGB, HVColors::oledRGB), 10.5, 0.05);
    EXPECT_GE(RGB::contrast(HVColors::oledTextRGB, HVColors::oledRGB), kBodyText);
    EXPECT_GE(RGB::contrast(HVColors::oledTextRGB, HVColors::oledCardRGB), kBodyText);
    EXPECT_GE(RGB::contrast(HVColors::oledDimRGB, HVColors::oledRGB), kOtherText);
    EXPECT_GE(RGB::contrast(HVColors::oledDimRGB, HVColors::oledCardRGB), kOtherText);
}

TEST(PaletteContrast, VerdictsReadOnTheDisplay)
{
    for (const RGB &verdict : { HVColors::goodRGB, HVColors::warnRGB, HVColors::badRGB }) {
        EXPECT_GE(RGB::contrast(verdict, HVColors::oledRGB), kOtherText);
        EXPECT_GE(RGB::contrast(verdict, HVColors::oledCardRGB), kOtherText);
    }
}

TEST(PaletteContrast, GlowReadsOnTheDisplayInEveryTheme)
{
    for (const CRVNTheme &theme : allThemes()) {
        const HVColors c(theme);
        EXPECT_GE(RGB::contrast(c.glowRGB(), HVColors::oledRGB), kOtherText)
            << qPrintable(theme.id);
        EXPECT_GE(RGB::contrast(c.glowRGB(), HVColors::oledCardRGB), kOtherText)
            << qPrintable(theme.id);
    }
}

TEST(PaletteContrast, TextReadsOnItsTintsInEveryTheme)
{
    const auto over = [](const RGB &ground, const RGB &color, double opacity) {
        return RGB::mix(ground, color, opacity);
    };
    for (const CRVNTheme &theme : allThemes()) {
        SCOPED_TRACE(qPrintable(theme.id));
        const HVColors c(theme);
        for (const RGB &ground : { HVColors::oledRGB, HVColors::oledCardRGB }) {
            const RGB callout = over(ground, HVColors::warnRGB, c.callout().alphaF());
            EXPECT_GE(RGB::contrast(HVColors::oledTextRGB, callout), kBodyText);
            const RGB row = over(ground, c.glowRGB(), c.hover().alphaF());
            EXPECT_GE(RGB::contrast(HVColors::oledTextRGB, row), kBodyText);
            EXPECT_GE(RGB::contrast(c.glowRGB(), row), kOtherText);
            const RGB button = over(ground, c.glowRGB(), c.quiet().alphaF());
            EXPECT_GE(RGB::contrast(c.glowRGB(), button), kOtherText);
        }
    }
}

TEST(PaletteContrast, BlackReadsOnTheGlowOfAProminentButtonInEveryTheme)
{
    for (const CRVNTheme &theme : allThemes()) {
        EXPECT_GE(RGB::contrast(kBlack, HVColors(theme).glowRGB()), kOtherText)
            << qPrintable(theme.id);
    }
}

TEST(PaletteContrast, EngravingReadsOnTheMetalInEveryTheme)
{
    for (const CRVNTheme &theme : allThemes()) {
        const HVColors c(theme);
        EXPECT_GE(RGB::contrast(c.engraveRGB(), c.bodyHiRGB()), kOtherText) << qPrintable(theme.id);
        EXPECT_GE(RGB::contrast(c.engraveRGB(), c.bodyRGB()), kOtherText) << qPrintable(theme.id);
        EXPECT_GE(RGB::contrast(c.engraveRGB(), c.bodyLoRGB()), kOtherText) << qPrintable(theme.id);
    }
}

TEST(PaletteContrast, EngravingReadsOnTheButtonsOfTheRailInEveryTheme)
{
    // The lightest gray of a button that isn't selected.
    for (const CRVNTheme &theme : allThemes()) {
        EXPECT_GE(RGB::contrast(HVColors(theme).engraveRGB(), RGB(0.2, 0.2, 0.2)), kOtherText)
            << qPrintable(theme.id);
    }
}

TEST(LevelColor, TellsTheLevelsApart)
{
    for (const CRVNTheme &theme : allThemes()) {
        const HVColors c(theme);
        EXPECT_EQ(levelColor(u"beginner"_s, c), c.good());
        EXPECT_EQ(levelColor(u"intermediate"_s, c), c.glow());
        EXPECT_EQ(levelColor(u"advanced"_s, c), c.warn());
        EXPECT_EQ(levelColor(u"professional"_s, c), c.warn());
    }
}

TEST(LevelColor, DoesNotDependOnTheCaseOfTheWord)
{
    const HVColors c(brass());
    EXPECT_EQ(levelColor(u"Beginner"_s, c), c.good());
    EXPECT_EQ(levelColor(u"BEGINNER"_s, c), c.good());
    EXPECT_EQ(levelColor(u"InterMediate"_s, c), c.glow());
    EXPECT_EQ(levelColor(u"ADVANCED"_s, c), c.warn());
    EXPECT_EQ(levelColor(u"Professional"_s, c), c.warn());
}

TEST(LevelColor, OfAnyOtherWordIsDim)
{
    const HVColors c(brass());
    for (const QString &level :
        { u""_s, u"expert"_s, u"beginners"_s, u" beginner"_s, u"beginner "_s })
        EXPECT_EQ(levelColor(level, c), c.oledDim()) << qPrintable(level);
}
