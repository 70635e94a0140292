// The mode that takes pictures, run as the program itself.

#include "camera/hvcolors.h"
#include "store/storetesting.h"
#include "store/userstore.h"
#include "support/program.h"
#include "support/testcourse.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <memory>
#include <optional>

#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

struct Picture {
    QString name;
    QSize size = QSize(1440, 920);
};

const QList<Picture> kPictures = {
    { u"01-campus"_s },
    { u"02-lesson-fnumbers"_s },
    { u"03-quiz"_s },
    { u"04-exposure-lab"_s },
    { u"05-lens-lab"_s },
    { u"06-history"_s },
    { u"07-gear-tripod"_s },
    { u"08-workflows"_s },
    { u"09-videos"_s },
    { u"10-videos-offline"_s },
    { u"11-notes-progress"_s },
    { u"12-search-tripod"_s },
    { u"13-campus-cobalt"_s },
    { u"14-gear-rose-gold"_s },
    { u"15-exposure-midnight"_s },
    { u"16-history-gray"_s },
    { u"17-lens-lavender"_s },
    { u"18-course-candy-red"_s },
    { u"20-help-credits"_s, QSize(1000, 1400) },
    { u"21-tripod-diagram"_s, QSize(800, 520) },
};

QStringList fileNames()
{
    QStringList names;
    for (const Picture &picture : kPictures)
        names.append(picture.name + u".png"_s);
    return names;
}

QStringList linesAboutAll()
{
    QStringList lines;
    for (const Picture &picture : kPictures) {
        lines.append(u"wrote %1.png %2x%3"_s.arg(picture.name)
                         .arg(picture.size.width())
                         .arg(picture.size.height()));
    }
    return lines;
}

bool hasSeveralColors(const QImage &image)
{
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != first)
                return true;
        }
    }
    return false;
}

// A run of the program that takes pictures.
struct Shooting {
    std::optional<int> status;
    QStringList lines;
    QString complaints;

    Shooting(const Home &home, const QStringList &arguments,
        const Program::Preparation &preparation = {})
    {
        Program program(home, arguments, preparation);
        status = program.status();
        lines = program.output().split(u'\n', Qt::SkipEmptyParts);
        complaints = program.complaints();
    }
};

class Snapshot : public ::testing::Test
{
protected:
    static void TearDownTestSuite()
    {
        plainShooting.reset();
        plainHome.reset();
    }

    // The run in surroundings that nobody has changed; one for all tests that only look at it.
    static const Shooting &plain()
    {
        if (!plainShooting) {
            plainHome = std::make_unique<Home>();
            plainShooting = std::make_unique<Shooting>(
                *plainHome, QStringList{ u"--hv-snapshot"_s, plainFolder() });
        }
        return *plainShooting;
    }
    [[nodiscard]] static QString plainFolder() { return plainHome->path(u"pictures"_s); }
    [[nodiscard]] static QImage plainPicture(const QString &name)
    {
        return QImage(plainFolder() + u'/' + name + u".png"_s);
    }

    // The run in the test's own home.
    [[nodiscard]] Shooting take(const Program::Preparation &preparation = {}) const
    {
        return Shooting(home, { u"--hv-snapshot"_s, pictures() }, preparation);
    }
    [[nodiscard]] QString pictures() const { return home.path(u"pictures"_s); }

    // The pictures of the test's own home are, byte for byte, those of the plain run.
    void expectPicturesAsEverywhere() const
    {
        ASSERT_EQ(plain().status, 0);
        const Fingerprint expected = fingerprint(plainFolder());
        const Fingerprint actual = fingerprint(pictures());
        ASSERT_EQ(expected.keys(), fileNames());
        QStringList different;
        for (const QString &name : fileNames()) {
            if (actual.value(name) != expected.value(name))
                different.append(name);
        }
        EXPECT_EQ(different, QStringList());
    }

    // The system's temporary folder is as empty as it was.
    void expectNoTraceOfTheSample() const
    {
        EXPECT_EQ(fingerprint(home.temporaryFolder()), Fingerprint());
    }

    static inline std::unique_ptr<Home> plainHome;
    static inline std::unique_ptr<Shooting> plainShooting;
    Home home;
};

} // namespace

// What it makes

TEST_F(Snapshot, SaysWhatItWroteAndEndsWell)
{
    EXPECT_EQ(plain().status, 0);
    EXPECT_EQ(plain().lines, linesAboutAll());
    EXPECT_EQ(plain().complaints, u""_s);
}

TEST_F(Snapshot, WritesEveryPictureAndNothingElse)
{
    ASSERT_EQ(plain().status, 0);
    EXPECT_EQ(fingerprint(plainFolder()).keys(), fileNames());
}

TEST_F(Snapshot, EveryPictureIsAPngOfItsSize)
{
    ASSERT_EQ(plain().status, 0);
    for (const Picture &picture : kPictures) {
        QImageReader reader(plainFolder() + u'/' + picture.name + u".png"_s);
        reader.setDecideFormatFromContent(true);
        EXPECT_EQ(reader.format(), "png") << qPrintable(picture.name);
        EXPECT_TRUE(reader.size() == picture.size) << qPrintable(picture.name);
    }
}

TEST_F(Snapshot, NoPictureIsEmpty)
{
    ASSERT_EQ(plain().status, 0);
    for (const Picture &picture : kPictures)
        EXPECT_TRUE(hasSeveralColors(plainPicture(picture.name))) << qPrintable(picture.name);
}

TEST_F(Snapshot, TheSameScreenLooksDifferentInAnotherTheme)
{
    ASSERT_EQ(plain().status, 0);
    const QImage brass = plainPicture(u"01-campus"_s);
    const QImage cobalt = plainPicture(u"13-campus-cobalt"_s);
    ASSERT_FALSE(brass.isNull());
    ASSERT_EQ(brass.size(), cobalt.size());
    EXPECT_FALSE(brass == cobalt);
}

TEST_F(Snapshot, TheLabsShowTheirPhotographs)
{
    ASSERT_EQ(plain().status, 0);
    // The subject's face in the Exposure Lab, overexposed, and in the first thumbnail of the Lens
    // Lab: skin, redder than blue. Black stands where a photograph is missing.
    for (const auto &[name, place] : { std::pair{ u"04-exposure-lab"_s, QPoint(720, 400) },
             { u"05-lens-lab"_s, QPoint(485, 785) } }) {
        const QColor skin = plainPicture(name).pixelColor(place);
        EXPECT_GT(skin.red(), 120) << qPrintable(name);
        EXPECT_GT(skin.red(), skin.blue()) << qPrintable(name);
    }
}

TEST_F(Snapshot, ASearchCoversTheScreenUnderIt)
{
    ASSERT_EQ(plain().status, 0);
    EXPECT_FALSE(plainPicture(u"12-search-tripod"_s) == plainPicture(u"11-notes-progress"_s));
}

TEST_F(Snapshot, TheTripodIsDrawnInTheGlowOfTheThemeOnTheDisplaysBlackWithAllItsWords)
{
    ASSERT_EQ(plain().status, 0);
    const QImage picture = plainPicture(u"21-tripod-diagram"_s);
    ASSERT_EQ(picture.size(), QSize(800, 520));
    // The theme is the one before, "candy-red-titanium".
    const HVColors colors(CRVNThemes::named(u"candy-red-titanium"_s));
    QRect inked;
    int inGlow = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            if (pixel != picture.pixelColor(0, 0))
                inked |= QRect(x, y, 1, 1);
            inGlow += pixel.rgb() == colors.glow().rgb() ? 1 : 0;
        }
    }
    EXPECT_EQ(picture.pixelColor(0, 0).name(), colors.oled().name());
    EXPECT_GT(inGlow, 1000);
    // A drawing as large as fits is 395 pixels high, and its words run over its edges, where they
    // are cut off. One that leaves room for all of them is smaller.
    EXPECT_TRUE(picture.rect().marginsRemoved({ 20, 20, 20, 20 }).contains(inked));
    EXPECT_LT(inked.height(), 380);
}

TEST_F(Snapshot, TwoRunsMakeTheSameBytes)
{
    ASSERT_EQ(take().status, 0);
    expectPicturesAsEverywhere();
}

// Where it puts them

TEST_F(Snapshot, CreatesTheFolderAndThoseAboveIt)
{
    const QString deep = home.path(u"some/where/new"_s);
    EXPECT_EQ(Shooting(home, { u"--hv-snapshot"_s, deep }).status, 0);
    EXPECT_EQ(fingerprint(deep).keys(), fileNames());
}

TEST_F(Snapshot, ARelativeFolderCountsFromTheWorkingFolder)
{
    EXPECT_EQ(Shooting(home, { u"--hv-snapshot"_s, u"relative"_s }).status, 0);
    EXPECT_EQ(fingerprint(home.path(u"relative"_s)).keys(), fileNames());
}

TEST_F(Snapshot, OverwritesPicturesAndLeavesOtherFilesAlone)
{
    // given
    ASSERT_TRUE(QDir().mkpath(pictures()));
    writeFile(pictures() + u"/01-campus.png"_s, QByteArray("old").repeated(1000000));
    writeFile(pictures() + u"/19-mine.png"_s, "mine");
    // when
    ASSERT_EQ(take().status, 0);
    // then
    EXPECT_EQ(QImage(pictures() + u"/01-campus.png"_s).size(), QSize(1440, 920));
    EXPECT_FALSE(fileBytes(pictures() + u"/01-campus.png"_s).contains("oldold"));
    EXPECT_EQ(fileBytes(pictures() + u"/19-mine.png"_s), "mine");
}

TEST_F(Snapshot, TheOptionMayStandBehindOtherArguments)
{
    EXPECT_EQ(
        Shooting(home, { u"--unknown"_s, u"--hv-snapshot"_s, pictures(), u"more"_s }).status, 0);
    EXPECT_EQ(fingerprint(pictures()).keys(), fileNames());
}

// What it leaves alone

TEST_F(Snapshot, LeavesTheUsersProgressAndPreferencesAsTheyAre)
{
    // given
    ASSERT_TRUE(QDir().mkpath(home.dataFolder()));
    UserStore(QUrl::fromLocalFile(home.progressFile())).setComplete(u"a1-l1"_s, true);
    ASSERT_TRUE(QDir().mkpath(QFileInfo(home.preferencesFile()).path()));
    writeFile(home.preferencesFile(), R"({ "crvn.theme": "rose-gold", "crvn.zoom": 1.5 })");
    const Fingerprint data = fingerprint(home.dataFolder());
    const Fingerprint settings = fingerprint(QFileInfo(home.preferencesFile()).path());
    // when
    ASSERT_EQ(take().status, 0);
    // then
    EXPECT_EQ(fingerprint(home.dataFolder()), data);
    EXPECT_EQ(fingerprint(QFileInfo(home.preferencesFile()).path()), settings);
}

TEST_F(Snapshot, LeavesTheProgressFileThatTheEnvironmentNamesAsItIs)
{
    // given
    const QString mine = home.path(u"elsewhere/mine.sqlite"_s);
    UserStore(QUrl::fromLocalFile(mine)).setComplete(u"a1-l1"_s, true);
    const Fingerprint before = fingerprint(home.path(u"elsewhere"_s));
    home.environment.insert(u"HV_DB_PATH"_s, mine);
    // when
    ASSERT_EQ(take().status, 0);
    // then
    EXPECT_EQ(fingerprint(home.path(u"elsewhere"_s)), before);
}

TEST_F(Snapshot, LeavesNoTraceButThePictures)
{
    const Fingerprint before = home.fingerprint();
    ASSERT_EQ(take().status, 0);
    ASSERT_TRUE(QDir(pictures()).removeRecursively());
    EXPECT_EQ(home.fingerprint(), before);
}

TEST_F(Snapshot, RunsBesideAnOpenCamera)
{
    Program camera(home);
    ASSERT_TRUE(camera.waitUntilItAnswers());
    const Fingerprint before = fingerprint(home.dataFolder());
    EXPECT_EQ(take().status, 0);
    EXPECT_EQ(fingerprint(home.dataFolder()), before);
    EXPECT_TRUE(camera.isRunning());
}

// Whatever the surroundings are

TEST_F(Snapshot, NeedsNoDisplay)
{
    home.environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    home.environment.insert(u"DISPLAY"_s, u"nonsense:99"_s);
    home.environment.insert(u"WAYLAND_DISPLAY"_s, u"nonsense"_s);
    const Shooting run = take();
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.lines, linesAboutAll());
}

TEST_F(Snapshot, TheUsersThemeAndZoomDoNotShowInThePictures)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(home.preferencesFile()).path()));
    writeFile(home.preferencesFile(), R"({ "crvn.theme": "rose-gold", "crvn.zoom": 1.5 })");
    ASSERT_EQ(take().status, 0);
    expectPicturesAsEverywhere();
}

TEST_F(Snapshot, TheScalingOfTheUsersDesktopDoesNotShowInThePictures)
{
    home.environment.insert(u"QT_SCALE_FACTOR"_s, u"2"_s);
    ASSERT_EQ(take().status, 0);
    expectPicturesAsEverywhere();
}

TEST_F(Snapshot, TheDensityOfTheUsersScreenDoesNotShowInThePictures)
{
    home.environment.insert(u"QT_SCREEN_SCALE_FACTORS"_s, u"1.5"_s);
    home.environment.insert(u"QT_USE_PHYSICAL_DPI"_s, u"1"_s);
    home.environment.insert(u"QT_FONT_DPI"_s, u"144"_s);
    ASSERT_EQ(take().status, 0);
    expectPicturesAsEverywhere();
}

TEST_F(Snapshot, TakesEveryPictureOfACourseThatHasNoneOfItsSubjects)
{
    TestCourse::write(home.path(u"other course"_s),
        { { u"course.txt"_s, "=== MODULE z1\ntitle: Z\n\n=== LESSON z1.1\nmodule: z1\n" } });
    home.environment.insert(u"HV_CONTENT"_s, home.path(u"other course"_s));
    const Shooting run = take();
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.lines, linesAboutAll());
}

TEST_F(Snapshot, TakesEveryPictureWithoutACourse)
{
    home.environment.insert(u"HV_CONTENT"_s, home.path(u"no course"_s));
    const Shooting run = take();
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.lines, linesAboutAll());
}

// When something fails

TEST_F(Snapshot, AFolderThatCanNotBeMadeFailsForEveryPicture)
{
    // given
    writeFile(pictures(), "a file");
    QStringList expected;
    for (const Picture &picture : kPictures)
        expected.append(u"could not render "_s + picture.name);
    // when
    const Shooting run = take();
    // then
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.lines, expected);
    EXPECT_EQ(fileBytes(pictures()), "a file");
    expectNoTraceOfTheSample();
}

TEST_F(Snapshot, APictureThatCanNotBeWrittenDoesNotKeepTheOthersFromBeing)
{
    // given: a folder where a picture should be
    ASSERT_TRUE(QDir().mkpath(pictures() + u"/03-quiz.png"_s));
    QStringList expected = linesAboutAll();
    expected[2] = u"could not render 03-quiz"_s;
    // when
    const Shooting run = take();
    // then
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.lines, expected);
    EXPECT_EQ(fingerprint(pictures()).keys(), fileNames());
}

TEST_F(Snapshot, APictureIsNotWrittenThroughALink)
{
    // given
    writeFile(home.path(u"precious"_s), "notes");
    ASSERT_TRUE(QDir().mkpath(pictures()));
    const QString name = fileNames().constFirst();
    ASSERT_TRUE(QFile::link(home.path(u"precious"_s), pictures() + u'/' + name));
    // when
    const Shooting run = take();
    // then
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.lines.contains("could not render "_L1 + QFileInfo(name).completeBaseName()));
    EXPECT_EQ(fileBytes(home.path(u"precious"_s)), QByteArray("notes"));
}

TEST_F(Snapshot, ALinkInThePlaceOfTheSampleLeadsNowhere)
{
    writeFile(home.path(u"precious"_s), "notes");
    for (const QString &suffix : { u""_s, u"-wal"_s, u"-shm"_s }) {
        ASSERT_TRUE(QFile::link(home.path(u"precious"_s),
            home.temporaryFolder() + u"/snapshot-sample.sqlite"_s + suffix));
    }
    EXPECT_EQ(take().status, 0);
    EXPECT_EQ(fileBytes(home.path(u"precious"_s)), QByteArray("notes"));
    expectNoTraceOfTheSample();
}

TEST_F(Snapshot, ReplacesTheSampleThatAnEarlierRunHasLeft)
{
    for (const QString &suffix : { u""_s, u"-wal"_s, u"-shm"_s }) {
        writeFile(home.temporaryFolder() + u"/snapshot-sample.sqlite"_s + suffix,
            QByteArray("no database ").repeated(1000));
    }
    EXPECT_EQ(take().status, 0);
    expectNoTraceOfTheSample();
    expectPicturesAsEverywhere();
}

TEST_F(Snapshot, TakesNoPictureWhenTheSampleCanNotBeOpened)
{
    // given: a folder in its place
    ASSERT_TRUE(QDir().mkpath(home.temporaryFolder() + u"/snapshot-sample.sqlite"_s));
    // when
    const Shooting run = take();
    // then
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.lines, QStringList(u"could not open sample file"_s));
    EXPECT_EQ(fingerprint(pictures()), Fingerprint());
}

TEST_F(Snapshot, LeavesNoSampleThatCouldNotBeFilled)
{
    // given: room for a new progress file and for nothing more
    const Folder scratch;
    const UserStore fresh(scratch.url(u"Progress.sqlite"_s));
    rlim_t room = 0;
    for (const QFileInfo &file : QDir(scratch.path()).entryInfoList(QDir::Files))
        room = std::max(room, rlim_t(file.size()));
    // when
    const Shooting run = take([room] {
        const rlimit limit{ .rlim_cur = room, .rlim_max = room };
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, SIG_IGN); // then the write fails instead
    });
    // then
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.lines, QStringList(u"could not open sample file"_s));
    expectNoTraceOfTheSample();
}
