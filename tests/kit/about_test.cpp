#include "kit/about.h"

#include "kit/kit.h"
#include "kit/printing.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class About : public ::testing::Test
{
protected:
    ~About() override
    {
        CRVNKit::install({});
        CRVNAbout::setExtraLines({});
        CRVNAbout::setOpener({});
    }

    [[nodiscard]] static QString versionOf(const CRVNKit::Version &version)
    {
        CRVNKit::install({ .name = u"A Program"_s, .version = version });
        return CRVNAbout::version();
    }
};

} // namespace

TEST_F(About, TellsTheVersionWithTheBuildBehindIt)
{
    EXPECT_EQ(versionOf({ .number = u"1.0"_s, .build = u"1"_s }), u"Version 1.0 (1)"_s);
}

TEST_F(About, LeavesTheParenthesesOutWithoutABuild)
{
    EXPECT_EQ(versionOf({ .number = u"1.0"_s, .build = {} }), u"Version 1.0"_s);
}

TEST_F(About, HasNothingBehindTheWordWithoutAVersion)
{
    EXPECT_EQ(versionOf({}), u"Version "_s);
}

TEST_F(About, TakesTheYearOfTheCopyrightFromTheDay)
{
    EXPECT_EQ(CRVNAbout::copyrightLine(QDate(2026, 12, 31)), u"© 2026 Corvane"_s);
    EXPECT_EQ(CRVNAbout::copyrightLine(QDate(2027, 1, 1)), u"© 2027 Corvane"_s);
}

TEST_F(About, TakesTheDayFromTheClock)
{
    // New Year may fall between the calls.
    const QString before = CRVNAbout::copyrightLine(QDate::currentDate());
    const QString line = CRVNAbout::copyrightLine();
    const QString after = CRVNAbout::copyrightLine(QDate::currentDate());
    EXPECT_TRUE(line == before || line == after) << qPrintable(line);
}

TEST_F(About, HasTheLinesThatTheApplicationAdds)
{
    EXPECT_EQ(CRVNAbout::extraLines(), QStringList());
    CRVNAbout::setExtraLines({ u"One."_s, u"Two."_s });
    EXPECT_EQ(CRVNAbout::extraLines(), (QStringList{ u"One."_s, u"Two."_s }));
}

TEST_F(About, OpensTheWindowThatHasRegistered)
{
    CRVNAbout::show(); // nobody there yet

    int shown = 0;
    CRVNAbout::setOpener([&shown] { ++shown; });
    CRVNAbout::show();
    CRVNAbout::show();
    EXPECT_EQ(shown, 2);
}

TEST_F(About, ShowsTheApplicationsIconInTheMiddleOfWhatIsAskedFor)
{
    CRVNKit::install({ .paintIcon = [](QPainter &painter, double side) {
        painter.fillRect(QRectF(0, 0, side, side), Qt::red);
    } });
    const QImage wide = CRVNKitHost::icon().pixmap(QSize(64, 32)).toImage();
    EXPECT_EQ(wide.size(), QSize(64, 32));
    EXPECT_EQ(wide.pixelColor(16, 0), QColor(Qt::red));
    EXPECT_EQ(wide.pixelColor(47, 31), QColor(Qt::red));
    EXPECT_EQ(wide.pixelColor(15, 16).alpha(), 0);
    EXPECT_EQ(wide.pixelColor(48, 16).alpha(), 0);
}

TEST_F(About, HasAnEmptyIconOfAnApplicationWithoutOne)
{
    CRVNKit::install({});
    EXPECT_EQ(CRVNKitHost::icon().pixmap(16).toImage().pixelColor(8, 8).alpha(), 0);
}
