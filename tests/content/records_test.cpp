#include "content/records.h"

#include "support/qtprinters.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

QString summaryOf(const QString &body)
{
    GearEntry entry;
    entry.body = body;
    return entry.summary();
}

QString lengthOf(qint64 seconds)
{
    Video video;
    video.seconds = seconds;
    return video.length();
}

} // namespace

TEST(GearEntry, HasItsFirstParagraphForASummary)
{
    EXPECT_EQ(summaryOf(u"One.\n\nTwo.\n\nThree."_s), u"One.");
    EXPECT_EQ(summaryOf(u"One,\nin two lines.\n\nTwo."_s), u"One,\nin two lines.");
    EXPECT_EQ(summaryOf(u"One.\n\n\nTwo."_s), u"One.");
}

TEST(GearEntry, HasAllOfItsBodyForASummaryIfNoLineInItIsEmpty)
{
    EXPECT_EQ(summaryOf(u"One."_s), u"One.");
    EXPECT_EQ(summaryOf(u"One.\n \nStill one."_s), u"One.\n \nStill one.");
    EXPECT_EQ(summaryOf(u""_s), u"");
}

TEST(Video, TellsItsLengthInMinutesAndTwoDigitsOfSeconds)
{
    EXPECT_EQ(lengthOf(0), u"0:00");
    EXPECT_EQ(lengthOf(9), u"0:09");
    EXPECT_EQ(lengthOf(59), u"0:59");
    EXPECT_EQ(lengthOf(60), u"1:00");
    EXPECT_EQ(lengthOf(612), u"10:12");
}

TEST(Video, CountsMinutesOnBeyondTheHour)
{
    EXPECT_EQ(lengthOf(3599), u"59:59");
    EXPECT_EQ(lengthOf(3600), u"60:00");
    EXPECT_EQ(lengthOf(std::numeric_limits<qint64>::max()), u"153722867280912930:07");
}

TEST(Records, AreEqualWhenEveryFieldIs)
{
    const GearEntry entry{ u"g1"_s, u"Zoom"_s, u"Lenses"_s, u"lens"_s, u"kit lens"_s, u"Body."_s,
        { { u"Model"_s, u"use"_s, u"specs"_s, u"url"_s, u"2026-10-24"_s } }, { u"g2"_s } };
    GearEntry other = entry;
    EXPECT_EQ(entry, other);
    other.models[0].checked = u"2026-10-23"_s;
    EXPECT_NE(entry, other);
}
