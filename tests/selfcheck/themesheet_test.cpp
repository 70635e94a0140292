// The mode that shows the camera in all themes, run as the program itself.

#include "store/storetesting.h"
#include "support/program.h"
#include "support/qtprinters.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

class ThemeSheet : public ::testing::Test
{
protected:
    [[nodiscard]] QString file() const { return home.path(u"themes.png"_s); }

    Home home;
};

} // namespace

TEST_F(ThemeSheet, ShowsTheCameraInSevenBodies)
{
    Program program(home, { u"--theme-sheet"_s, file() });
    EXPECT_EQ(program.status(), 0);
    EXPECT_EQ(program.complaints(), u""_s);
    const QImage sheet(file());
    ASSERT_EQ(sheet.size(), QSize(2 * 740 + 20, 4 * 510 + 20));
    // A place on the metal beside the lettering of each top plate.
    QSet<QRgb> metals;
    for (int i = 0; i < 7; ++i)
        metals.insert(sheet.pixel(20 + i % 2 * 740 + 300, 20 + i / 2 * 510 + 36));
    EXPECT_EQ(metals.size(), 7);
}

TEST_F(ThemeSheet, LeavesNoTraceButTheFile)
{
    Program program(home, { u"--theme-sheet"_s, file() });
    EXPECT_EQ(program.status(), 0);
    EXPECT_FALSE(QFileInfo::exists(home.preferencesFile()));
}

TEST_F(ThemeSheet, NeedsAFile)
{
    Program program(home, { u"--theme-sheet"_s });
    EXPECT_EQ(program.status(), 2);
    EXPECT_EQ(program.complaints(), u"Usage: halvorin --theme-sheet FILE\n"_s);
}
