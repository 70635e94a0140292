// The children that the self-test starts, and what it makes of them.

#include "recording.h"
#include "selfcheck/selftest/childmodes.h"
#include "selfcheck/selftest/groups.h"
#include "store/storetesting.h"
#include "store/userstore.h"
#include "support/program.h"
#include "support/qtprinters.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;
using HVSelfTest::ChildResult;

namespace {

const QString kDigest
    = u"DIGEST|m01.1,m03.2#m01=5/6#gear:tripod#lesson:m01.1:Aperture = the hole. Bigger hole, "
      "smaller f-number. ✓ ünïcödé¦general:general:Buy a 50mm f/1.8 first."_s;
const QString kCounts = u"COUNTS|2|1|1|2"_s;

class ChildModes : public ::testing::Test
{
protected:
    [[nodiscard]] QString file() const { return home.path(u"relaunch.sqlite"_s); }

    Home home;
};

// The labels of the checks that fail with children that end and print so.
QStringList failures(const ChildResult &writer, const ChildResult &reader)
{
    Recording recording;
    HVSelfTest::relaunchTests(recording.run, u"/nowhere"_s, [&](const QStringList &arguments) {
        return arguments.first() == "--hv-child-write"_L1 ? writer : reader;
    });
    EXPECT_EQ(recording.lines.size(), 5);
    return recording.failed();
}

ChildResult printing(const QStringList &lines)
{
    return { .status = 0, .output = lines.join(u'\n') + u'\n' };
}

} // namespace

TEST_F(ChildModes, WriteWhatTheNextReads)
{
    Program writer(home, { u"--hv-child-write"_s, file() });
    EXPECT_EQ(writer.status(), 0);
    EXPECT_EQ(writer.output(), QString(kDigest + u'\n'));
    Program reader(home, { u"--hv-child-read"_s, file() });
    EXPECT_EQ(reader.status(), 0);
    EXPECT_EQ(reader.output(), QString(kDigest + u'\n' + kCounts + u'\n'));
    EXPECT_EQ(writer.complaints() + reader.complaints(), u""_s);
}

TEST_F(ChildModes, ReadANewFileAsAnEmptyOne)
{
    Program reader(home, { u"--hv-child-read"_s, file() });
    EXPECT_EQ(reader.status(), 0);
    EXPECT_EQ(reader.output(), u"DIGEST|###\nCOUNTS|0|0|0|0\n"_s);
}

TEST_F(ChildModes, EndWithThreeAndNoWordOnAFileThatCanNotBeOpened)
{
    writeFile(file(), QByteArray("no database ").repeated(1000));
    for (const QString &option : { u"--hv-child-write"_s, u"--hv-child-read"_s }) {
        for (const QString &path :
            { file(), home.path(), home.path(u"relaunch.sqlite/x"_s), u""_s }) {
            Program child(home, { option, path });
            EXPECT_EQ(child.status(), 3) << qPrintable(option + u' ' + path);
            EXPECT_EQ(child.output() + child.complaints(), u""_s);
        }
    }
}

TEST_F(ChildModes, EndWithFourAndTheErrorOnAFileThatCanNotBeWritten)
{
    // given: a table that takes nothing in
    {
        std::ignore = UserStore(QUrl::fromLocalFile(file()));
        SQLiteDB(file()).exec(u"DROP TABLE notes; CREATE TABLE notes (id, target_type, target_id, "
                              "body, created, updated, room_for_it NOT NULL)"_s);
    }
    // when
    Program child(home, { u"--hv-child-write"_s, file() });
    // then
    EXPECT_EQ(child.status(), 4);
    const QString output = child.output();
    EXPECT_TRUE(output.startsWith("ERROR|"_L1) && output.contains("room_for_it"_L1))
        << qPrintable(output);
    EXPECT_EQ(output.count(u'\n'), 1);
}

TEST_F(ChildModes, TouchNoOtherFileOfTheUsersWhereverTheyStandAmongTheArguments)
{
    const Fingerprint before = home.fingerprint();
    for (const QStringList &arguments : {
             QStringList{ u"--hv-child-write"_s, file() },
             QStringList{ u"--selftest"_s, u"--hv-snapshot"_s, home.path(u"pictures"_s),
                 u"--hv-child-read"_s, file(), u"--help"_s },
         }) {
        Program child(home, arguments);
        EXPECT_EQ(child.status(), 0);
        EXPECT_TRUE(child.output().startsWith("DIGEST|"_L1));
    }
    ASSERT_TRUE(QFile::remove(file()));
    EXPECT_EQ(home.fingerprint(), before);
}

TEST_F(ChildModes, NeedNoDisplayAndNoPlatform)
{
    home.environment.insert(u"QT_QPA_PLATFORM"_s, u"nonsense"_s);
    home.environment.insert(u"DISPLAY"_s, u"nonsense:99"_s);
    Program child(home, { u"--hv-child-write"_s, file() });
    EXPECT_EQ(child.status(), 0);
    EXPECT_EQ(child.output(), QString(kDigest + u'\n'));
}

TEST_F(ChildModes, CountARelativePathFromTheWorkingFolder)
{
    EXPECT_EQ(Program(home, { u"--hv-child-write"_s, u"relaunch.sqlite"_s }).status(), 0);
    EXPECT_TRUE(QFile::exists(file()));
}

TEST_F(ChildModes, WithoutAPathStartTheCamera)
{
    for (const QString &option : { u"--hv-child-write"_s, u"--hv-child-read"_s }) {
        Program camera(home, { option });
        EXPECT_TRUE(camera.waitUntilItAnswers()) << qPrintable(option);
        EXPECT_EQ(camera.output(), u""_s);
    }
}

TEST(ChildArguments, WritingGoesBeforeReadingAndOtherArgumentsAreNone)
{
    EXPECT_EQ(HVSelfTest::handleChild({}), std::nullopt);
    EXPECT_EQ(HVSelfTest::handleChild({ u"--selftest"_s }), std::nullopt);
    EXPECT_EQ(HVSelfTest::handleChild({ u"--hv-child-write=x"_s, u"x"_s }), std::nullopt);
    EXPECT_EQ(HVSelfTest::handleChild({ u"x"_s, u"--hv-child-write"_s }), std::nullopt);
    EXPECT_EQ(HVSelfTest::handleChild({ u"x"_s, u"--hv-child-read"_s }), std::nullopt);
    // A folder is no progress file.
    EXPECT_EQ(HVSelfTest::handleChild({ u"--hv-child-read"_s, u"/"_s }), 3);

    const Folder folder;
    testing::internal::CaptureStdout();
    const std::optional<int> status = HVSelfTest::handleChild({ u"--hv-child-read"_s,
        folder.path(u"read"_s), u"--hv-child-write"_s, folder.path(u"write"_s) });
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(QFile::exists(folder.path(u"read"_s)));
    EXPECT_TRUE(QFile::exists(folder.path(u"write"_s)));
}

TEST(RelaunchGroup, PassesWithTwoChildrenThatAgree)
{
    EXPECT_EQ(failures(printing({ kDigest }), printing({ kDigest, kCounts })), QStringList());
    EXPECT_EQ(failures(printing({ u"chatter"_s, kDigest }), printing({ kCounts, kDigest })),
        QStringList());
}

TEST(RelaunchGroup, WantsBothChildrenToEndWell)
{
    ChildResult reader = printing({ kDigest, kCounts });
    reader.status = 7;
    EXPECT_EQ(failures(printing({ kDigest }), reader),
        QStringList(u"two separate app processes wrote and then read the file (exit 0, 7)"_s));
}

TEST(RelaunchGroup, WantsEqualDigestsOfMoreThanFortyCharacters)
{
    const QStringList differs{ u"everything read back exactly as written"_s };
    const QString note = u"note text with accents and symbols kept exactly"_s;
    EXPECT_EQ(failures(printing({ kDigest + u'!' }), printing({ kDigest, kCounts })), differs);
    EXPECT_EQ(failures(printing({}), printing({ kDigest, kCounts })), differs);

    const QString forty = u"DIGEST|"_s + QString(33, u'x');
    EXPECT_EQ(failures(printing({ forty }), printing({ forty, kCounts })),
        (QStringList{ differs.first(), note }));
    EXPECT_EQ(failures(printing({ forty + u'x' }), printing({ forty + u'x', kCounts })),
        QStringList(note));
}

TEST(RelaunchGroup, WantsTheCountsAndTheNoteToTheLetter)
{
    EXPECT_EQ(failures(printing({ kDigest }), printing({ kDigest, u"COUNTS|2|1|1|3"_s })),
        QStringList(u"2 finished lessons, 1 quiz score, 1 bookmark, 2 notes after relaunch "
                    "(COUNTS|2|1|1|3)"_s));
    const QString plain = QString(kDigest).replace(u"ünïcödé"_s, u"unicode"_s);
    EXPECT_EQ(failures(printing({ plain }), printing({ plain, kCounts })),
        QStringList(u"note text with accents and symbols kept exactly"_s));
}

TEST(RelaunchGroup, FailsInEveryCheckWithoutChildren)
{
    const ChildResult none{ .status = 98, .output = {} };
    EXPECT_EQ(failures(none, none).size(), 4);
}
