#include "screens/videos/videoshelf.h"

#include "content/contentlibrary.h"
#include "kit/printing.h"
#include "screens/coursetesting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using CourseTesting::Course;
using CourseTesting::World;

namespace {

class VideoShelfTest : public testing::Test
{
protected:
    [[nodiscard]] const ContentLibrary &library() const { return ContentLibrary::shared(); }
    [[nodiscard]] QStringList shown(const QString &filter) const
    {
        QStringList titles;
        for (const Video *video : VideoShelf::shown(filter, library()))
            titles.append(video->title);
        return titles;
    }
    [[nodiscard]] QStringList rows(const QString &filter) const
    {
        QStringList texts;
        for (const VideoShelf::Row &row :
            VideoShelf::byModule(VideoShelf::shown(filter, library()), library()))
            texts.append(row.module->title + u": " + row.video->title);
        return texts;
    }
    [[nodiscard]] QString selected(
        const std::optional<QString> &videoID, const QString &filter = {}) const
    {
        const Video *video
            = VideoShelf::selected(videoID, VideoShelf::shown(filter, library()), library());
        return video ? video->title : u"nothing"_s;
    }

    World world{ Course::Films };
};

} // namespace

TEST_F(VideoShelfTest, ShowsEveryFilmInTheCoursesOrder)
{
    const QStringList all{ u"Shutters"_s, u"Pinhole"_s, u"Nobody's film"_s, u"Pinhole for two"_s };
    EXPECT_EQ(shown({}), all);
    EXPECT_EQ(shown(u" \t "_s), all);
}

TEST_F(VideoShelfTest, ShowsWhatAFilterFindsBestFirst)
{
    EXPECT_EQ(shown(u" shutters\t"_s), QStringList(u"Shutters"_s));
    EXPECT_EQ(shown(u"pinhole"_s), QStringList({ u"Pinhole"_s, u"Pinhole for two"_s }));
    EXPECT_EQ(shown(u"zeppelin"_s), QStringList());
}

TEST_F(VideoShelfTest, GroupsByModuleInTheCoursesOrder)
{
    EXPECT_EQ(rows({}),
        QStringList({ u"Light and the camera: Pinhole"_s,
            u"Light and the camera: Pinhole for two"_s, u"Time: Shutters"_s }));
    EXPECT_EQ(rows(u"shutters"_s), QStringList(u"Time: Shutters"_s));
}

TEST_F(VideoShelfTest, AFilmOfNoModuleIsFoundButStandsInNoGroup)
{
    EXPECT_EQ(shown(u"nobody"_s), QStringList(u"Nobody's film"_s));
    EXPECT_EQ(rows(u"nobody"_s), QStringList());
}

TEST_F(VideoShelfTest, ThePageIsAboutTheChosenFilmElseTheFirstShown)
{
    EXPECT_EQ(selected({}), u"Shutters");
    EXPECT_EQ(selected({}, u"pinhole"_s), u"Pinhole");
    EXPECT_EQ(selected(u"nopinhole_2"_s), u"Pinhole for two");
    EXPECT_EQ(selected(u"gone"_s), u"Shutters");
}

TEST_F(VideoShelfTest, TheChosenFilmStaysWhileNothingMatches)
{
    EXPECT_EQ(selected(u"nopinhole_2"_s, u"zeppelin"_s), u"Pinhole for two");
    EXPECT_EQ(selected({}, u"zeppelin"_s), u"nothing");
    EXPECT_EQ(selected(u"gone"_s, u"zeppelin"_s), u"nothing");
}

TEST(VideoLines, TellChannelLengthAndDays)
{
    const Video video{ .channel = u"The Bench"_s,
        .seconds = 725,
        .published = u"2020-01-02"_s,
        .checked = u"2026-10-24"_s };
    EXPECT_EQ(VideoShelf::byline(video), u"The Bench · 12:05");
    EXPECT_EQ(VideoShelf::pageLine(video),
        u"The Bench · 12:05 · published 2020-01-02 · link checked 2026-10-24");
}
