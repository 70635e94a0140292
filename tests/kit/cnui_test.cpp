#include "kit/qml/cnui.h"

#include "kit/preferences.h"
#include "kit/printing.h"

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
