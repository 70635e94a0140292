#include "soak/typed.h"

#include "content/contentlibrary.h"
#include "store/userstore.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void Typed::add(const QString &text)
{
    for (const QChar letter : text)
        ++m_counts[letter];
}

QStringList Typed::objectionsTo(const UserStore &store, const ContentLibrary &course) const
{
    const auto isIn = [](const auto &list, const QString &id) {
        return std::ranges::any_of(list, [&id](const auto &entry) { return entry.id == id; });
    };

    QStringList objections;
    QHash<QChar, qsizetype> counts;
    for (const Note &note : store.notes()) {
        for (const QChar letter : note.body)
            ++counts[letter];
    }
    for (const auto &[letter, count] : counts.asKeyValueRange()) {
        // A line's end is a key of its own, which the monkey presses for other reasons too.
        if (letter != kPasted.front() && !letter.isSpace() && count > m_counts.value(letter))
            objections.append(
                u"The notes have %1 times \"%2\", and it was typed %3 times."_s.arg(count)
                    .arg(letter)
                    .arg(m_counts.value(letter)));
    }
    for (const QString &id : store.completedLessons()) {
        if (!isIn(course.lessons(), id))
            objections.append(u"A lesson is finished that there isn't: "_s + id);
    }
    for (const QuizResult &result : store.quizResults()) {
        if (!isIn(course.modules(), result.moduleID) || result.score > result.total)
            objections.append(u"A quiz that there isn't was taken: "_s + result.moduleID);
    }
    for (const Bookmark &mark : store.bookmarks()) {
        const QString &id = mark.targetID;
        if (!isIn(course.lessons(), id) && !isIn(course.gear(), id) && !isIn(course.timeline(), id)
            && !isIn(course.videos(), id))
            objections.append(u"A bookmark leads nowhere: "_s + mark.targetType + u' ' + id);
    }
    return objections;
}
