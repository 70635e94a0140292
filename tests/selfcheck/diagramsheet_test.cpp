// The mode that shows all gear drawings, run as the program itself.

#include "store/storetesting.h"
#include "support/program.h"
#include "support/qtprinters.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

class DiagramSheet : public ::testing::Test
{
protected:
    [[nodiscard]] QString file() const { return home.path(u"sheet.png"_s); }
    [[nodiscard]] QImage sheet() const { return QImage(file()); }

    // Makes the sheet, and looks at what the run said.
    void take() const
    {
        Program program(home, { u"--diagram-sheet"_s, file() });
        EXPECT_EQ(program.status(), 0);
        EXPECT_EQ(program.output(),
            u"wrote %1 %2x%3\n"_s.arg(
                file(), QString::number(sheet().width()), QString::number(sheet().height())));
        EXPECT_EQ(program.complaints(), u""_s);
    }

    void choose(const QString &theme) const
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(home.preferencesFile()).path()));
        writeFile(home.preferencesFile(), R"({ "crvn.theme": ")" + theme.toUtf8() + R"(" })");
    }

    Home home;
};

} // namespace

TEST_F(DiagramSheet, IsOnePngWithADrawingInEachOfItsEightySixCells)
{
    take();
    QImageReader reader(file());
    reader.setDecideFormatFromContent(true);
    EXPECT_EQ(reader.format(), "png");
    const QImage image = sheet();
    const QRgb ground = image.pixel(0, 0);
    int cells = 0;
    const QSize cell(740, 320);
    for (int y = 0; y < image.height(); y += cell.height()) {
        for (int x = 0; x < image.width(); x += cell.width()) {
            QImage blank(cell, image.format());
            blank.fill(ground);
            cells += image.copy(QRect({ x, y }, cell)) == blank ? 0 : 1;
        }
    }
    EXPECT_EQ(cells, 86);
}

TEST_F(DiagramSheet, IsInTheColorsOfTheChosenTheme)
{
    take();
    const QImage brass = sheet();
    choose(u"rose-gold"_s);
    take();
    EXPECT_EQ(sheet().size(), brass.size());
    EXPECT_FALSE(sheet() == brass);
}

TEST_F(DiagramSheet, NeedsNoDisplay)
{
    take();
    const QImage before = sheet();
    home.environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    home.environment.insert(u"DISPLAY"_s, u"nonsense:99"_s);
    home.environment.insert(u"WAYLAND_DISPLAY"_s, u"nonsense"_s);
    home.environment.insert(u"QT_SCALE_FACTOR"_s, u"2"_s);
    take();
    EXPECT_TRUE(sheet() == before);
}

TEST_F(DiagramSheet, LeavesNoTraceButTheFile)
{
    choose(u"rose-gold"_s);
    const Fingerprint before = home.fingerprint();
    take();
    ASSERT_TRUE(QFile::remove(file()));
    EXPECT_EQ(home.fingerprint(), before);
}

TEST_F(DiagramSheet, OverwritesAnOlderOne)
{
    writeFile(file(), QByteArray("old").repeated(1000000));
    take();
    EXPECT_FALSE(sheet().isNull());
    EXPECT_FALSE(fileBytes(file()).contains("oldold"));
}

TEST_F(DiagramSheet, IsAPngWhateverItsFileIsCalled)
{
    const QString odd = home.path(u"50% %2 sheet"_s);
    Program program(home, { u"--diagram-sheet"_s, odd });
    EXPECT_EQ(program.status(), 0);
    EXPECT_TRUE(program.output().startsWith(QString(u"wrote "_s + odd + u' ')));
    EXPECT_EQ(QImageReader::imageFormat(odd), "png");
}

TEST_F(DiagramSheet, SaysWhatItCouldNotWrite)
{
    for (const QString &path :
        { home.path(u"no folder/sheet.png"_s), home.path(), home.path(u"sheet.png/"_s), u""_s }) {
        SCOPED_TRACE(qPrintable(path));
        Program program(home, { u"--diagram-sheet"_s, path });
        EXPECT_EQ(program.status(), 1);
        EXPECT_EQ(program.output(), u""_s);
        EXPECT_TRUE(program.complaints().contains(QString(u"could not write "_s + path)));
    }
}
