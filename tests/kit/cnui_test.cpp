#include "kit/qml/cnui.h"

#include "kit/preferences.h"
#include "kit/printing.h"

#include <QTextOption>

#include <gtest/gtest.h>

namespace {

using RGB = CRVNTheme::RGB;

RGB rgb(const QColor &color)
{
    return { color.redF(), color.greenF(), color.blueF() };
}

class KitColors : public testing::Test
{
protected:
    KitColors() { Preferences::shared().keepInMemory(); }
    ~KitColors() override { Preferences::shared().remove(CRVNThemes::key); }
};

} // namespace

TEST(Lightened, IsTheInkItselfWhereThatReads)
{
    EXPECT_EQ(CRVNTheme::lightened({ 1, 1, 1 }, { 0, 0, 0 }, 4.5), RGB(1, 1, 1));
}

TEST(Lightened, IsNoLighterThanItHasToBe)
{
    const RGB ink(0x8A6420u);
    const RGB ground(0x2E2A25u);
    const RGB lighter = CRVNTheme::lightened(ink, ground, 4.5);
    EXPECT_GE(RGB::contrast(lighter, ground), 4.5);
    EXPECT_LT(RGB::contrast(lighter, ground), 5.2);
}

TEST(Lightened, EndsAtWhite)
{
    EXPECT_EQ(CRVNTheme::lightened({ 0.2, 0.2, 0.2 }, { 0.6, 0.6, 0.6 }, 4.5), RGB(1, 1, 1));
}

TEST_F(KitColors, AreReadInEveryTheme)
{
    for (const CRVNTheme &theme : CRVNThemes::builtIn()) {
        CRVNThemes::setCurrentID(theme.id);
        const CNUI kit;
        const auto reads = [&kit](const QColor &ink, const QColor &ground) {
            return RGB::contrast(rgb(ink), rgb(ground));
        };
        // Menus, tips, dialogs, help and About.
        EXPECT_GE(reads(kit.theme().text, kit.theme().bg), 7) << qPrintable(theme.id);
        EXPECT_GE(reads(kit.theme().text, kit.theme().panelTop), 4.5) << qPrintable(theme.id);
        EXPECT_GE(reads(kit.theme().text, kit.theme().panelBottom), 7) << qPrintable(theme.id);
        EXPECT_GE(reads(kit.theme().dim, kit.theme().bg), 4.5) << qPrintable(theme.id);
        EXPECT_GE(reads(kit.theme().dim, kit.theme().panelBottom), 4.5) << qPrintable(theme.id);
        EXPECT_GE(reads(kit.linkInk(), kit.theme().panelTop), 4.5) << qPrintable(theme.id);
        EXPECT_GE(reads(kit.linkInk(), kit.theme().bg), 4.5) << qPrintable(theme.id);
        EXPECT_GE(reads(kit.selectionInk(), kit.selection()), 4.5) << qPrintable(theme.id);
    }
}

TEST(TextsOfUsers, BreakBetweenWords)
{
    const CNUI kit;
    for (const QString &text :
        QStringList{ QString(), QStringLiteral("Meter for the shadows.\n").repeated(900),
            QString(999, u'm') + u' ' + QString(999, u'm'), QString(20'000, u'写'),
            QString(20'000, u'\n') })
        EXPECT_EQ(kit.wrapMode(text), QTextOption::WrapAtWordBoundaryOrAnywhere)
            << qPrintable(text.left(30));
}

TEST(TextsOfUsers, BreakAnywhereIfAWordTakesPages)
{
    const CNUI kit;
    EXPECT_EQ(kit.wrapMode(QString(1000, u'm')), QTextOption::WrapAnywhere);
    EXPECT_EQ(kit.wrapMode(QStringLiteral("a picture: ") + QString(1000, u'/') + u'\n'),
        QTextOption::WrapAnywhere);
}
