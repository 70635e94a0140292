#include "screens/quiz/private/quiztaking.h"

#include "screens/common/storefollower.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"
#include "store/dateformatter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kShownScores = 5;

QString colorName(QuizSheet::Mark::Ink ink)
{
    switch (ink) {
    case QuizSheet::Mark::Ink::Dim:
        return u"oledDim"_s;
    case QuizSheet::Mark::Ink::Glow:
        return u"glow"_s;
    case QuizSheet::Mark::Ink::Good:
        return u"good"_s;
    case QuizSheet::Mark::Ink::Bad:
        return u"bad"_s;
    }
    Q_UNREACHABLE();
}

} // namespace

QuizTaking::QuizTaking(QObject *parent)
    : RowModel(parent)
{
    show();
    followStore(this, &QuizTaking::scoresChanged);
}

void QuizTaking::setModuleID(const QString &id)
{
    if (m_moduleID == id)
        return;
    m_moduleID = id;
    m_questions = ContentLibrary::shared().questionsIn(id);
    show();
    Q_EMIT moduleIDChanged();
    Q_EMIT scoresChanged();
    changeSheet();
}

void QuizTaking::show()
{
    showRows<Question>(m_questions,
        {
            { "number", [](const Question &, int row) { return row + 1; } },
            { "prompt", &Question::prompt },
            { "options", &Question::options },
            { "picked", [this](const Question &question) { return m_sheet.picked(question.id); } },
            { "marks", [this](const Question &question) { return marks(question); } },
            { "explanation",
                [this](const Question &question) -> QString {
                    return (m_sheet.isRight(question) ? tr("Right. ") : tr("Not quite. "))
                        + question.why;
                } },
            { "correct", [this](const Question &question) { return m_sheet.isRight(question); } },
        });
}

QString QuizTaking::title() const
{
    const Module *module = ContentLibrary::shared().module(m_moduleID);
    return tr("Quiz: ") + (module ? module->title : QString());
}

QString QuizTaking::subtitle() const
{
    return tr("%1 questions. Pick one answer for each, then check your answers.")
        .arg(m_questions.size());
}

QString QuizTaking::scores() const
{
    const UserStore *store = UserStore::shared();
    if (!store)
        return {};
    const DateFormatter dates;
    QStringList scores;
    for (const QuizResult &result : store->quizResults(m_moduleID).mid(0, kShownScores))
        scores.append(
            u"%1/%2 ("_s.arg(result.score).arg(result.total) + dates.day(result.taken) + u')');
    return scores.isEmpty() ? QString() : tr("Your scores: ") + scores.join(u" · "_s);
}

int QuizTaking::firstUnanswered() const
{
    const auto found = std::ranges::find_if(
        m_questions, [this](const Question &question) { return m_sheet.picked(question.id) < 0; });
    return found != m_questions.end() ? int(found - m_questions.begin()) : -1;
}

void QuizTaking::pick(int row, int option)
{
    const Question question = m_questions.value(row);
    if (option >= 0 && option < question.options.size() && m_sheet.pick(question.id, option))
        changeSheet();
}

QVariantList QuizTaking::marks(const Question &question) const
{
    QVariantList marks;
    for (int option = 0; option < question.options.size(); ++option) {
        const QuizSheet::Mark mark = m_sheet.mark(question, option);
        marks.append(QVariantMap{ { u"symbol"_s, mark.symbol }, { u"ink"_s, colorName(mark.ink) },
            { u"verdict"_s, verdict(question, option) } });
    }
    return marks;
}

QString QuizTaking::verdict(const Question &question, int option) const
{
    if (!reviewed())
        return {};
    const bool isPicked = m_sheet.picked(question.id) == option;
    if (option == question.correct)
        return isPicked ? tr("Your answer, right") : tr("The right answer");
    return isPicked ? tr("Your answer, wrong") : QString();
}

void QuizTaking::check()
{
    if (reviewed() || !complete())
        return;
    bool isStored = true;
    if (UserStore *store = UserStore::shared()) {
        isStored = false;
        AppModel::shared().run([&] {
            store->saveQuiz(
                m_moduleID, right(), int(m_questions.size()), QDateTime::currentDateTimeUtc());
            isStored = true;
        });
    }
    if (!isStored)
        return;
    m_sheet.review();
    changeSheet();
}

void QuizTaking::tryAgain()
{
    m_sheet.clear();
    changeSheet();
}

void QuizTaking::changeSheet()
{
    refresh("picked");
    refresh("marks");
    refresh("explanation");
    refresh("correct");
    Q_EMIT sheetChanged();
}
