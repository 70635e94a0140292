#include "selfcheck/selftest/testrun.h"

#include "recording.h"
#include "selfcheck/selftest/mutation.h"
#include "selfcheck/standardoutput.h"
#include "store/storetesting.h"
#include "support/qtprinters.h"

#include <QFile>
#include <QLocale>

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QString nearLine(double value, double expected, double tolerance)
{
    Recording recording;
    recording.run.near(u"label"_s, value, expected, tolerance);
    return recording.lines.value(0);
}

} // namespace

TEST(TestRun, HasCountedNothingAtFirst)
{
    const Recording recording;
    EXPECT_EQ(recording.run.passed(), 0);
    EXPECT_EQ(recording.run.failed(), 0);
    EXPECT_EQ(recording.lines, QStringList());
}

TEST(TestRun, TellsAndCountsEachCheckAsItHappens)
{
    Recording recording;
    recording.run.begin(u"A group"_s);
    EXPECT_EQ(recording.lines.size(), 1);
    recording.run.check(true, u"one"_s);
    EXPECT_EQ(recording.lines.size(), 2);
    recording.run.check(false, u"two"_s);
    recording.run.check(true, u"three"_s);
    EXPECT_EQ(recording.lines,
        (QStringList{ u"== A group"_s, u"PASS  one"_s, u"FAIL  two"_s, u"PASS  three"_s }));
    EXPECT_EQ(recording.run.passed(), 2);
    EXPECT_EQ(recording.run.failed(), 1);
}

TEST(TestRun, TellsANumberWithFourDecimalsBesideTheExpectedOneAndTheTolerance)
{
    EXPECT_EQ(nearLine(14.96578, 14.966, 0.01), u"PASS  label: 14.9658 ≈ 14.9660 (±0.01)"_s);
    EXPECT_EQ(nearLine(-0.5, 0, 0.05), u"FAIL  label: -0.5000 ≈ 0.0000 (±0.05)"_s);
}

TEST(TestRun, WritesAToleranceAsShortAsItReadsBack)
{
    EXPECT_EQ(nearLine(0, 0, 1e-9), u"PASS  label: 0.0000 ≈ 0.0000 (±1e-09)"_s);
    EXPECT_EQ(nearLine(0, 0, 0.001), u"PASS  label: 0.0000 ≈ 0.0000 (±0.001)"_s);
    EXPECT_EQ(nearLine(0, 0, 0.1), u"PASS  label: 0.0000 ≈ 0.0000 (±0.1)"_s);
}

TEST(TestRun, IsNearUpToTheToleranceItself)
{
    EXPECT_TRUE(nearLine(1.5, 1, 0.5).startsWith("PASS"_L1));
    EXPECT_TRUE(nearLine(0.5, 1, 0.5).startsWith("PASS"_L1));
    EXPECT_TRUE(nearLine(1.5000001, 1, 0.5).startsWith("FAIL"_L1));
}

TEST(TestRun, IsNearNothingWithoutANumber)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(nearLine(nan, 1, 0.5), u"FAIL  label: nan ≈ 1.0000 (±0.5)"_s);
    EXPECT_EQ(nearLine(infinity, infinity, 0.5), u"FAIL  label: inf ≈ inf (±0.5)"_s);
}

TEST(TestRun, WritesNumbersAlikeUnderEveryLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(nearLine(1234.5, 1234.5, 0.05), u"PASS  label: 1234.5000 ≈ 1234.5000 (±0.05)"_s);
    QLocale::setDefault(before);
}

TEST(StandardOutput, HasEachLineInUtf8AsSoonAsItIsTold)
{
    // given: a file in the place of standard output, which the C library would fill by blocks
    const StoreTesting::Folder folder;
    QFile file(folder.path(u"output"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    std::fflush(stdout);
    const int before = ::dup(STDOUT_FILENO);
    ::dup2(file.handle(), STDOUT_FILENO);
    // when
    printLine(u"f/2 → ünï"_s);
    const QByteArray one = StoreTesting::fileBytes(file.fileName());
    printLine({});
    const QByteArray both = StoreTesting::fileBytes(file.fileName());
    ::dup2(before, STDOUT_FILENO);
    ::close(before);
    // then
    EXPECT_EQ(QString::fromUtf8(one), u"f/2 → ünï\n"_s);
    EXPECT_EQ(QString::fromUtf8(both), u"f/2 → ünï\n\n"_s);
}

TEST(Mutation, TakesNamesFromBetweenCommas)
{
    HVMutation::activate(u"a, b,,"_s);
    EXPECT_EQ(HVMutation::active(), (QSet<QString>{ u"a"_s, u"b"_s }));
    HVMutation::activate(u","_s);
    EXPECT_TRUE(HVMutation::active().isEmpty());
    HVMutation::activate({});
    EXPECT_TRUE(HVMutation::active().isEmpty());
}

TEST(Mutation, IsOnForNoName)
{
    HVMutation::activate(u"a"_s);
    EXPECT_FALSE(HVMutation::on(u"a"));
    EXPECT_FALSE(HVMutation::on(u"b"));
    HVMutation::activate({});
}
