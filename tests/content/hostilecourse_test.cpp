// Course folders that somebody has made to do harm: what can't be read as a course file is told,
// and the rest of the course is there.

#include "content/contentlibrary.h"
#include "coursefolder.h"
#include "support/qtprinters.h"
#include "support/testcourse.h"
#include "support/watchdog.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <algorithm>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

class HostileCourse : public ::testing::Test
{
protected:
    HostileCourse() { TestCourse::write(folder.path()); }

    // What is told of a course in which something else stands in the place of one file.
    void expectTold(const QString &name, const QString &problem) const
    {
        const ContentLibrary library(folder.path());
        EXPECT_EQ(library.loadErrors(), QStringList{ name + u": " + problem });
        EXPECT_EQ(library.problems().first(1), library.loadErrors());
        EXPECT_FALSE(library.search(u"tripod"_s).isEmpty());
    }

    const CourseFolder folder;
    const Watchdog watchdog;
};

const QString kNoFile = u"it isn't an ordinary file"_s;
const QString kTooLarge = u"the file is too large"_s;

} // namespace

TEST_F(HostileCourse, ReadsNoFileOfTwentyGigabytes)
{
    for (const QString &name : kCourseFiles) {
        const QByteArray sound = TestCourse::files().value(name);
        ASSERT_TRUE(QFile::resize(folder.path(name), 20LL << 30)); // sparse
        expectTold(name, kTooLarge);
        folder.write(name, sound);
    }
}

TEST_F(HostileCourse, ReadsALineOfFiftyMegabytes)
{
    folder.write(u"course.txt"_s, "=== LESSON a1-l1\ntitle: " + QByteArray(50 << 20, 'x'));
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.lessons().constFirst().title.size(), 50 << 20);
    EXPECT_EQ(library.loadErrors(), QStringList());
    EXPECT_FALSE(library.search(u"tripod"_s).isEmpty());
}

TEST_F(HostileCourse, ReadsAFileOfTheLargestSize)
{
    const QByteArray head = "=== GEAR tripod\nname: Tripod\n#";
    folder.write(u"gear.txt"_s, head + QByteArray((64 << 20) - head.size(), '|'));
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.loadErrors(), QStringList());
    EXPECT_EQ(library.gear().size(), 1);
    folder.write(u"gear.txt"_s, head + QByteArray((64 << 20) + 1 - head.size(), '|'));
    expectTold(u"gear.txt"_s, kTooLarge);
}

TEST_F(HostileCourse, TakesAnyNumberOfMarksForText)
{
    QByteArray text = "=== LESSON a1-l1\nmodule: a1\n---\n";
    for (int i = 0; i < 100'000; ++i)
        text += "> • ## > ";
    folder.write(u"course.txt"_s, text + '\n' + QByteArray(1'000'000, '>'));
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.loadErrors(), QStringList());
    EXPECT_EQ(library.lessons().size(), 1);
}

TEST_F(HostileCourse, LooksAtNothingButItsFiles)
{
    const QByteArray odd = QFile::encodeName(folder.path()) + "/\xFF\xFE\n\"odd.txt";
    ASSERT_EQ(mkfifo(odd.constData(), 0600), 0);
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"COURSE.TXT"_s));
    EXPECT_EQ(ContentLibrary(folder.path()).loadErrors(), QStringList());
    ASSERT_EQ(::unlink(odd.constData()), 0);
}

TEST_F(HostileCourse, FollowsALinkToAFile)
{
    const QTemporaryDir elsewhere;
    const QString file = elsewhere.filePath(u"my course"_s);
    ASSERT_TRUE(QFile::rename(folder.path(u"course.txt"_s), file));
    ASSERT_TRUE(QFile::link(file, folder.path(u"course.txt"_s)));
    EXPECT_EQ(ContentLibrary(folder.path()).loadErrors(), QStringList());
}

TEST_F(HostileCourse, TellsOfLinksThatLeadToNoFile)
{
    const QString name = u"software.txt"_s;
    const auto linkTo = [&](const QString &target) {
        folder.remove(name);
        ASSERT_TRUE(QFile::link(target, folder.path(name)));
    };
    linkTo(folder.path(u"not there"_s));
    expectTold(name, u"the file can't be found"_s);
    linkTo(folder.path());
    expectTold(name, u"there is a folder in its place"_s);
    linkTo(u"/dev/zero"_s);
    expectTold(name, kNoFile);
    linkTo(folder.path(name));
    expectTold(name, u"the file can't be found"_s);
}

TEST_F(HostileCourse, TellsOfASocket)
{
    const QString name = u"timeline.txt"_s;
    folder.remove(name);
    const int handle = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path = QFile::encodeName(folder.path(name));
    ASSERT_LT(size_t(path.size()), sizeof address.sun_path);
    std::ranges::copy(path, address.sun_path);
    ASSERT_EQ(bind(handle, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    close(handle);
    expectTold(name, kNoFile);
}

// A folder for whose name there is no text.
TEST_F(HostileCourse, CannotBeInAFolderWhoseNameIsNoText)
{
    const ContentLibrary library(folder.path() + u"/\xFFFD\xD800");
    EXPECT_EQ(library.loadErrors().size(), 7);
    EXPECT_TRUE(library.search(u"tripod"_s).isEmpty());
}
