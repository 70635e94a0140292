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
#include <QMap>

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

// A run that several tests look at, each at something else, with the home it was in.
struct SharedRun {
    Home home;
    QMap<QString, Fingerprint> before;
    std::optional<Shooting> run;

    // Remembers what is in a folder before the run.
    void remember(const QString &folder) { before.insert(folder, fingerprint(folder)); }
    void expectAsBefore(const QString &folder) const
    {
        EXPECT_EQ(fingerprint(folder), before.value(folder));
    }
    [[nodiscard]] QString pictures() const { return home.path(u"pictures"_s); }
    [[nodiscard]] QImage picture(const QString &name) const
    {
        return QImage(pictures() + u'/' + name + u".png"_s);
    }
};

// Taking pictures is what takes long here: the program runs once for what can be seen in one run,
// and ctest has all of these tests in one process.
class Snapshot : public ::testing::Test
{
protected:
    using Run = std::unique_ptr<SharedRun>;

    static void TearDownTestSuite()
    {
        for (Run *run : { &plainRun, &secondRun, &usersRun, &elsewhereRun, &overOldOnesRun })
            run->reset();
    }

    // In surroundings that nobody has changed.
    static const SharedRun &plain()
    {
        return made(plainRun, [](SharedRun &) {});
    }

    // The same again, in another home.
    static const SharedRun &second()
    {
        return made(secondRun, [](SharedRun &shared) {
            shared.before[shared.home.path()] = shared.home.fingerprint();
        });
    }

    // With a user who has progress, a theme and a zoom, and after a run that was cut short.
    static const SharedRun &users()
    {
        return made(usersRun, [](SharedRun &shared) {
            const Home &home = shared.home;
            ASSERT_TRUE(QDir().mkpath(home.dataFolder()));
            UserStore(QUrl::fromLocalFile(home.progressFile())).setComplete(u"a1-l1"_s, true);
            chooseThemeAndZoom(home);
            for (const QString &suffix : { u""_s, u"-wal"_s, u"-shm"_s }) {
                writeFile(home.temporaryFolder() + u"/snapshot-sample.sqlite"_s + suffix,
                    QByteArray("no database ").repeated(1000));
            }
            shared.remember(home.dataFolder());
            shared.remember(QFileInfo(home.preferencesFile()).path());
        });
    }

    // Into a folder below the working folder, with another progress file, without a display.
    static const SharedRun &elsewhere()
    {
        return made(elsewhereRun,
            [](SharedRun &shared) {
                Home &home = shared.home;
                const QString mine = home.path(u"elsewhere/mine.sqlite"_s);
                UserStore(QUrl::fromLocalFile(mine)).setComplete(u"a1-l1"_s, true);
                home.environment.insert(u"HV_DB_PATH"_s, mine);
                home.environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
                home.environment.insert(u"DISPLAY"_s, u"nonsense:99"_s);
                home.environment.insert(u"WAYLAND_DISPLAY"_s, u"nonsense"_s);
                shared.remember(home.path(u"elsewhere"_s));
            },
            { u"--unknown"_s, u"--hv-snapshot"_s, u"some/where/new"_s, u"more"_s });
    }

    // Where there are pictures already, and a folder where one should be.
    static const SharedRun &overOldOnes()
    {
        return made(overOldOnesRun, [](SharedRun &shared) {
            ASSERT_TRUE(QDir().mkpath(shared.pictures() + u"/03-quiz.png"_s));
            writeFile(shared.pictures() + u"/01-campus.png"_s, QByteArray("old").repeated(1000000));
            writeFile(shared.pictures() + u"/19-mine.png"_s, "mine");
        });
    }

    static void chooseThemeAndZoom(const Home &home)
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(home.preferencesFile()).path()));
        writeFile(home.preferencesFile(), R"({ "crvn.theme": "rose-gold", "crvn.zoom": 1.5 })");
    }

    // The run in the test's own home.
    [[nodiscard]] Shooting take(const Program::Preparation &preparation = {}) const
    {
        return Shooting(home, { u"--hv-snapshot"_s, pictures() }, preparation);
    }
    [[nodiscard]] QString pictures() const { return home.path(u"pictures"_s); }

    // The pictures are, byte for byte, those of the plain run.
    static void expectPicturesAsEverywhere(const QString &folder)
    {
        ASSERT_EQ(plain().run->status, 0);
        const Fingerprint expected = fingerprint(plain().pictures());
        const Fingerprint actual = fingerprint(folder);
        ASSERT_EQ(expected.keys(), fileNames());
        QStringList different;
        for (const QString &name : fileNames()) {
            if (actual.value(name) != expected.value(name))
                different.append(name);
        }
        EXPECT_EQ(different, QStringList());
    }

    // The system's temporary folder is as empty as it was.
    static void expectNoTraceOfTheSample(const Home &home)
    {
        EXPECT_EQ(fingerprint(home.temporaryFolder()), Fingerprint());
    }

    Home home;

private:
    template <typename Given>
    static const SharedRun &made(Run &run, Given given, QStringList arguments = {})
    {
        if (!run) {
            run = std::make_unique<SharedRun>();
            given(*run);
            if (arguments.isEmpty())
                arguments = { u"--hv-snapshot"_s, run->pictures() };
            run->run.emplace(run->home, arguments);
        }
        return *run;
    }

    static inline Run plainRun;
    static inline Run secondRun;
    static inline Run usersRun;
    static inline Run elsewhereRun;
    static inline Run overOldOnesRun;
};

} // namespace

// What it makes

TEST_F(Snapshot, SaysWhatItWroteAndEndsWell)
{
    EXPECT_EQ(plain().run->status, 0);
    EXPECT_EQ(plain().run->lines, linesAboutAll());
    EXPECT_EQ(plain().run->complaints, u""_s);
}

TEST_F(Snapshot, WritesEveryPictureAndNothingElse)
{
    ASSERT_EQ(plain().run->status, 0);
    EXPECT_EQ(fingerprint(plain().pictures()).keys(), fileNames());
}

TEST_F(Snapshot, EveryPictureIsAPngOfItsSize)
{
    ASSERT_EQ(plain().run->status, 0);
    for (const Picture &picture : kPictures) {
        QImageReader reader(plain().pictures() + u'/' + picture.name + u".png"_s);
        reader.setDecideFormatFromContent(true);
        EXPECT_EQ(reader.format(), "png") << qPrintable(picture.name);
        EXPECT_TRUE(reader.size() == picture.size) << qPrintable(picture.name);
    }
}

TEST_F(Snapshot, NoPictureIsEmpty)
{
    ASSERT_EQ(plain().run->status, 0);
    for (const Picture &picture : kPictures)
        EXPECT_TRUE(hasSeveralColors(plain().picture(picture.name))) << qPrintable(picture.name);
}

TEST_F(Snapshot, TheSameScreenLooksDifferentInAnotherTheme)
{
    ASSERT_EQ(plain().run->status, 0);
    const QImage brass = plain().picture(u"01-campus"_s);
    const QImage cobalt = plain().picture(u"13-campus-cobalt"_s);
    ASSERT_FALSE(brass.isNull());
    ASSERT_EQ(brass.size(), cobalt.size());
    EXPECT_FALSE(brass == cobalt);
}

TEST_F(Snapshot, TheLabsShowTheirPhotographs)
{
    ASSERT_EQ(plain().run->status, 0);
    // The subject's face in the Exposure Lab, overexposed, and in the first thumbnail of the Lens
    // Lab: skin, redder than blue. Black stands where a photograph is missing.
    for (const auto &[name, place] : { std::pair{ u"04-exposure-lab"_s, QPoint(720, 400) },
             { u"05-lens-lab"_s, QPoint(485, 785) } }) {
        const QColor skin = plain().picture(name).pixelColor(place);
        EXPECT_GT(skin.red(), 120) << qPrintable(name);
        EXPECT_GT(skin.red(), skin.blue()) << qPrintable(name);
    }
}

TEST_F(Snapshot, ASearchCoversTheScreenUnderIt)
{
    ASSERT_EQ(plain().run->status, 0);
    EXPECT_FALSE(plain().picture(u"12-search-tripod"_s) == plain().picture(u"11-notes-progress"_s));
}

TEST_F(Snapshot, TheTripodIsDrawnInTheGlowOfTheThemeOnTheDisplaysBlackWithAllItsWords)
{
    ASSERT_EQ(plain().run->status, 0);
    const QImage picture = plain().picture(u"21-tripod-diagram"_s);
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
    ASSERT_EQ(second().run->status, 0);
    expectPicturesAsEverywhere(second().pictures());
}

// Where it puts them

TEST_F(Snapshot, CreatesTheFolderAndThoseAboveIt)
{
    ASSERT_EQ(elsewhere().run->status, 0);
    EXPECT_EQ(elsewhere().run->lines, linesAboutAll());
    EXPECT_EQ(fingerprint(elsewhere().home.path(u"some/where/new"_s)).keys(), fileNames());
}

TEST_F(Snapshot, ARelativeFolderCountsFromTheWorkingFolder)
{
    EXPECT_EQ(elsewhere().run->status, 0);
    EXPECT_TRUE(QFileInfo::exists(elsewhere().home.path(u"some/where/new/01-campus.png"_s)));
}

TEST_F(Snapshot, OverwritesPicturesAndLeavesOtherFilesAlone)
{
    ASSERT_EQ(overOldOnes().run->lines.first(), linesAboutAll().first());
    const QString folder = overOldOnes().pictures();
    EXPECT_EQ(overOldOnes().picture(u"01-campus"_s).size(), QSize(1440, 920));
    EXPECT_FALSE(fileBytes(folder + u"/01-campus.png"_s).contains("oldold"));
    EXPECT_EQ(fileBytes(folder + u"/19-mine.png"_s), "mine");
}

TEST_F(Snapshot, TheOptionMayStandBehindOtherArguments)
{
    EXPECT_EQ(elsewhere().run->status, 0);
    EXPECT_EQ(elsewhere().run->lines, linesAboutAll());
}

// What it leaves alone

TEST_F(Snapshot, LeavesTheUsersProgressAndPreferencesAsTheyAre)
{
    ASSERT_EQ(users().run->status, 0);
    users().expectAsBefore(users().home.dataFolder());
    users().expectAsBefore(QFileInfo(users().home.preferencesFile()).path());
}

TEST_F(Snapshot, LeavesTheProgressFileThatTheEnvironmentNamesAsItIs)
{
    ASSERT_EQ(elsewhere().run->status, 0);
    elsewhere().expectAsBefore(elsewhere().home.path(u"elsewhere"_s));
}

TEST_F(Snapshot, LeavesNoTraceButThePictures)
{
    ASSERT_EQ(second().run->status, 0);
    Fingerprint after = second().home.fingerprint();
    for (const QString &name : fileNames())
        EXPECT_EQ(after.remove(second().pictures() + u'/' + name), 1) << qPrintable(name);
    EXPECT_EQ(after.remove(u"pictures"_s), 1);
    EXPECT_EQ(after, second().before.value(second().home.path()));
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
    EXPECT_EQ(elsewhere().run->status, 0);
    EXPECT_EQ(elsewhere().run->lines, linesAboutAll());
}

TEST_F(Snapshot, TheUsersThemeAndZoomDoNotShowInThePictures)
{
    ASSERT_EQ(users().run->status, 0);
    expectPicturesAsEverywhere(users().pictures());
}

TEST_F(Snapshot, TheScalingOfTheUsersDesktopDoesNotShowInThePictures)
{
    home.environment.insert(u"QT_SCALE_FACTOR"_s, u"2"_s);
    ASSERT_EQ(take().status, 0);
    expectPicturesAsEverywhere(pictures());
}

TEST_F(Snapshot, TheDensityOfTheUsersScreenDoesNotShowInThePictures)
{
    home.environment.insert(u"QT_SCREEN_SCALE_FACTORS"_s, u"1.5"_s);
    home.environment.insert(u"QT_USE_PHYSICAL_DPI"_s, u"1"_s);
    home.environment.insert(u"QT_FONT_DPI"_s, u"144"_s);
    ASSERT_EQ(take().status, 0);
    expectPicturesAsEverywhere(pictures());
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
    expectNoTraceOfTheSample(home);
}

TEST_F(Snapshot, APictureThatCanNotBeWrittenDoesNotKeepTheOthersFromBeing)
{
    QStringList expected = linesAboutAll();
    expected[2] = u"could not render 03-quiz"_s;
    EXPECT_EQ(overOldOnes().run->status, 1);
    EXPECT_EQ(overOldOnes().run->lines, expected);
    QStringList names = fileNames() + QStringList(u"19-mine.png"_s);
    names.sort();
    EXPECT_EQ(fingerprint(overOldOnes().pictures()).keys(), names);
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
    expectNoTraceOfTheSample(home);
}

TEST_F(Snapshot, ReplacesTheSampleThatAnEarlierRunHasLeft)
{
    EXPECT_EQ(users().run->status, 0);
    expectNoTraceOfTheSample(users().home);
    expectPicturesAsEverywhere(users().pictures());
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
    expectNoTraceOfTheSample(home);
}
