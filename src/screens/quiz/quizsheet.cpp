#include "screens/quiz/quizsheet.h"

#include <algorithm>

using namespace Qt::StringLiterals;

bool QuizSheet::pick(const QString &questionID, int option)
{
    if (m_isReviewed || picked(questionID) == option)
        return false;
    m_picks.insert(questionID, option);
    return true;
}

bool QuizSheet::isRight(const Question &question) const
{
    const auto pick = m_picks.constFind(question.id);
    return pick != m_picks.constEnd() && *pick == question.correct;
}

int QuizSheet::rightCount(const QList<Question> &questions) const
{
    return int(std::ranges::count_if(
        questions, [this](const Question &question) { return isRight(question); }));
}

QuizSheet::Mark QuizSheet::mark(const Question &question, int option) const
{
    const bool isPicked = picked(question.id) == option;
    if (!m_isReviewed) {
        return isPicked ? Mark{ u"largecircle.fill.circle"_s, Mark::Ink::Glow }
                        : Mark{ u"circle"_s, Mark::Ink::Dim };
    }
    if (option == question.correct)
        return { u"checkmark.circle.fill"_s, Mark::Ink::Good };
    return isPicked ? Mark{ u"xmark.circle.fill"_s, Mark::Ink::Bad }
                    : Mark{ u"circle"_s, Mark::Ink::Dim };
}

void QuizSheet::clear()
{
    m_picks.clear();
    m_isReviewed = false;
}
