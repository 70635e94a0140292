// The self-test on course folders that something terrible has happened to: it fails and ends.

#include "content/contentlibrary.h"
#include "recording.h"
#include "selfcheck/selftest/groups.h"
#include "selfcheckworld.h"
#include "store/storetesting.h"
#include "support/program.h"
#include "support/qtprinters.h"
#include "support/sampling.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFolders = 200;
constexpr int kFoldersOfAProcess = 10;

using Generator = std::mt19937;

qsizetype anyBelow(qsizetype limit, Generator &random)
{
    return limit > 0 ? std::uniform_int_distribution<qsizetype>(0, limit - 1)(random) : 0;
}

QByteArray noise(qsizetype length, Generator &random)
{
    QByteArray bytes(length, Qt::Uninitialized);
    std::ranges::generate(bytes, [&] { return char(anyBelow(256, random)); });
    return bytes;
}

// Fields and headings that look right and say anything.
QByteArray madeUpRecords(Generator &random)
{
    static const QList<QByteArray> kPieces
        = { "=== MODULE ", "=== LESSON ", "=== GEAR tripod", "=== GEAR ", "=== EVENT ",
              "=== QUESTION ", "=== SOFTWARE ", "=== STEP ", "===", "\n", "\n", "\n", "---\n",
              "module: ", "title: ", "right: ", "wrong: ", "diagram: ", "diagram: tripod\n",
              "year: -9223372036854775808\n", "year: 99999999999999999999\n", "minutes: -1\n",
              "model: |||", "model: a | b | c | https://d | 2026-01-01 | e\n", "source: |",
              "see: ,,tripod,", "videos: x,", "| | | |", "\t", "\r\n", "\r", "\xEF\xBB\xBF", "m01",
              "tripod", "aperture", "{credits}", "{", "}", "Kodak", "Lightroom",
              QByteArray(1, '\0'), "\xF0\x9F\x93\xB7", "e\xCC\x81\xCC\x81", "\xE2\x80\xA8" };
    QByteArray text;
    for (qsizetype i = anyBelow(2000, random); i > 0; --i)
        text += kPieces[anyBelow(kPieces.size(), random)];
    return text;
}

QByteArray damaged(QByteArray text, Generator &random)
{
    switch (anyBelow(7, random)) {
    case 0:
        return {};
    case 1:
        return noise(anyBelow(100000, random), random);
    case 2:
        return madeUpRecords(random);
    case 3:
        return text.first(anyBelow(text.size(), random));
    case 4: { // lines in another order
        QList<QByteArray> lines = text.split('\n');
        std::ranges::shuffle(lines, random);
        return lines.join('\n');
    }
    case 5: // some bytes are others
        for (int i = 0; i < 50; ++i)
            text[anyBelow(text.size(), random)] = char(anyBelow(256, random));
        return text;
    default: // a line without an end
        return text.replace('\n', ' ');
    }
}

// A folder in which each file is whole, damaged, missing or a folder, and one of them is certainly
// not whole. The same number gives the same folder.
void makeDamagedCourse(const QString &path, int number)
{
    Generator random{ Generator::result_type(number) };
    TestCourse::Files files = installedCourseFiles();
    const QStringList names = files.keys();
    QStringList folders;
    for (const QString &name : names) {
        switch (anyBelow(8, random)) {
        case 0:
            files.remove(name);
            break;
        case 1:
            files.remove(name);
            folders.append(name);
            break;
        case 2:
        case 3:
        case 4:
            files[name] = damaged(files[name], random);
            break;
        default:
            break;
        }
    }
    const QString broken = names[anyBelow(names.size(), random)];
    if (!folders.contains(broken))
        files[broken] = "\xFF" + noise(1000, random);
    TestCourse::write(path, files);
    for (const QString &name : folders)
        ASSERT_TRUE(QDir(path).mkpath(name));
}

} // namespace

// The groups that look at a course; the others don't know it.
TEST(DamagedCourses, FailInEveryOfTwoHundredFolders)
{
    prepareSelfTestGroups();
    std::vector<int> numbers(kFolders);
    std::iota(numbers.begin(), numbers.end(), 0);
    for (const int number : everyNthIfSanitized(numbers, 8)) {
        SCOPED_TRACE(number);
        const StoreTesting::Folder folder;
        makeDamagedCourse(folder.path(), number);
        ContentLibrary::setShared(std::make_unique<const ContentLibrary>(folder.path()));
        Recording recording;
        HVSelfTest::contentTests(recording.run);
        HVSelfTest::searchTests(recording.run);
        HVSelfTest::lookAndHelpTests(recording.run);
        runVideoTests(recording.run);
        EXPECT_GT(recording.run.failed(), 0);
        // No check is passed over, whatever is missing.
        EXPECT_EQ(recording.lines.size(), 15 + 13 + 29 + 8 + 4);
    }
    ContentLibrary::setShared(nullptr);
}

TEST(DamagedCourses, EndTheProgramWithStatusOne)
{
    std::vector<int> numbers(kFoldersOfAProcess);
    std::iota(numbers.begin(), numbers.end(), kFolders);
    for (const int number : everyNthIfSanitized(numbers, 5)) {
        SCOPED_TRACE(number);
        Home home;
        home.environment.insert(u"HV_CONTENT"_s, home.path(u"damaged"_s));
        makeDamagedCourse(home.path(u"damaged"_s), number);
        Program program(home, { u"--selftest"_s });
        EXPECT_EQ(program.status(), 1);
        EXPECT_TRUE(program.output().contains(u"\nRESULT: "_s));
    }
}
