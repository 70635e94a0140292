#include "screens/quiz/quizsheet.h"

#include "support/qtprinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Ink = QuizSheet::Mark::Ink;
using Mark = QuizSheet::Mark;

Question question(const QString &id, qsizetype correct = 1)
{
    return { .id = id, .options = { u"a"_s, u"b"_s, u"c"_s }, .correct = correct };
}

const Mark kOpen{ u"circle"_s, Ink::Dim };
const Mark kPicked{ u"largecircle.fill.circle"_s, Ink::Glow };
const Mark kRight{ u"checkmark.circle.fill"_s, Ink::Good };
const Mark kWrong{ u"xmark.circle.fill"_s, Ink::Bad };

} // namespace

TEST(QuizSheet, ShowsThePickWhileAnswering)
{
    QuizSheet sheet;
    sheet.pick(u"q"_s, 2);
    EXPECT_EQ(sheet.mark(question(u"q"_s), 0), kOpen);
    EXPECT_EQ(sheet.mark(question(u"q"_s), 1), kOpen); // The right one gives nothing away.
    EXPECT_EQ(sheet.mark(question(u"q"_s), 2), kPicked);
}

TEST(QuizSheet, ShowsTheRightOptionInTheReviewWhateverWasPicked)
{
    QuizSheet sheet;
    sheet.pick(u"missed"_s, 2);
    sheet.pick(u"hit"_s, 1);
    sheet.review();
    EXPECT_EQ(sheet.mark(question(u"missed"_s), 0), kOpen);
    EXPECT_EQ(sheet.mark(question(u"missed"_s), 1), kRight);
    EXPECT_EQ(sheet.mark(question(u"missed"_s), 2), kWrong);
    EXPECT_EQ(sheet.mark(question(u"hit"_s), 1), kRight);
    EXPECT_EQ(sheet.mark(question(u"hit"_s), 2), kOpen);
}

TEST(QuizSheet, ReplacesAPick)
{
    QuizSheet sheet;
    EXPECT_EQ(sheet.picked(u"q"_s), -1);
    EXPECT_TRUE(sheet.pick(u"q"_s, 0));
    EXPECT_TRUE(sheet.pick(u"q"_s, 2));
    EXPECT_FALSE(sheet.pick(u"q"_s, 2)); // Which doesn't take it back.
    EXPECT_EQ(sheet.picked(u"q"_s), 2);
    EXPECT_EQ(sheet.pickCount(), 1);
}

TEST(QuizSheet, PicksNothingInTheReview)
{
    QuizSheet sheet;
    sheet.pick(u"q"_s, 0);
    sheet.review();
    EXPECT_FALSE(sheet.pick(u"q"_s, 1));
    EXPECT_FALSE(sheet.pick(u"r"_s, 1));
    EXPECT_EQ(sheet.picked(u"q"_s), 0);
    EXPECT_EQ(sheet.pickCount(), 1);
}

TEST(QuizSheet, CountsRightPicksOfTheQuestionsAsked)
{
    QuizSheet sheet;
    sheet.pick(u"p"_s, 1);
    sheet.pick(u"q"_s, 0);
    sheet.pick(u"elsewhere"_s, 1);
    EXPECT_EQ(sheet.rightCount({ question(u"p"_s), question(u"q"_s), question(u"r"_s) }), 1);
    EXPECT_EQ(sheet.rightCount({}), 0);
}

TEST(QuizSheet, AQuestionWithoutARightOptionIsNeverRight)
{
    QuizSheet sheet;
    EXPECT_FALSE(sheet.isRight(question(u"q"_s, -1))); // Nor is one without a pick.
    sheet.pick(u"q"_s, 0);
    EXPECT_FALSE(sheet.isRight(question(u"q"_s, -1)));
}

TEST(QuizSheet, KeepsPicksOfOtherQuestionsInItsCount)
{
    QuizSheet sheet;
    sheet.pick(u"light"_s, 0);
    EXPECT_EQ(sheet.mark(question(u"time"_s), 0), kOpen);
    EXPECT_EQ(sheet.pickCount(), 1);
}

TEST(QuizSheet, BeginsAnew)
{
    QuizSheet sheet;
    sheet.pick(u"q"_s, 0);
    sheet.review();
    sheet.clear();
    EXPECT_FALSE(sheet.isReviewed());
    EXPECT_EQ(sheet.pickCount(), 0);
    EXPECT_EQ(sheet.mark(question(u"q"_s), 1), kOpen);
}
