// The two texts that tell of a whole store: one for programs to compare, one for its user.

#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "shell/info.h"
#include "store/dateformatter.h"
#include "store/userstore.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Each row as its columns one after the other, the given text before every column but the first.
QString joined(const QList<SQLRow> &rows, const QStringList &columns,
    const QStringList &betweenColumns, const QString &betweenRows)
{
    QStringList texts;
    texts.reserve(rows.size());
    for (const SQLRow &row : rows) {
        QString text = row.str(columns.first());
        for (qsizetype i = 1; i < columns.size(); ++i)
            text += betweenColumns.at(i - 1) + row.str(columns.at(i));
        texts.append(text);
    }
    return texts.join(betweenRows);
}

} // namespace

QString UserStore::title(const QString &type, const QString &id, const ContentLibrary &library)
{
    if (type == ContentKind::lesson) {
        const Lesson *lesson = library.lesson(id);
        return "Lesson: "_L1 + (lesson ? lesson->title : id);
    }
    if (type == ContentKind::gear) {
        const GearEntry *entry = library.gearEntry(id);
        return "Gear: "_L1 + (entry ? entry->name : id);
    }
    if (type == ContentKind::history) {
        const auto event = std::ranges::find(library.timeline(), id, &TimelineEvent::id);
        return "History: "_L1 + (event != library.timeline().end() ? event->title : id);
    }
    if (type == ContentKind::video) {
        const Video *video = library.video(id);
        return "Video: "_L1 + (video ? video->title : id);
    }
    return u"General note"_s;
}

QString UserStore::digest() const
{
    const QStringList parts{
        joined(rows(u"SELECT lesson_id FROM progress ORDER BY lesson_id"_s), { u"lesson_id"_s }, {},
            u","_s),
        joined(rows(u"SELECT module_id, score, total FROM quiz_results ORDER BY id"_s),
            { u"module_id"_s, u"score"_s, u"total"_s }, { u"="_s, u"/"_s }, u","_s),
        joined(rows(u"SELECT target_type, target_id FROM bookmarks "
                    "ORDER BY target_type, target_id"_s),
            { u"target_type"_s, u"target_id"_s }, { u":"_s }, u","_s),
        joined(rows(u"SELECT target_type, target_id, body FROM notes ORDER BY id"_s),
            { u"target_type"_s, u"target_id"_s, u"body"_s }, { u":"_s, u":"_s }, u"¦"_s),
    };
    return parts.join(u'#');
}

QString UserStore::exportText(const ContentLibrary &library) const
{
    const DateFormatter dates;
    const QSet<QString> finished = completedLessons();

    QString text = HVInfo::appName + u" — my notes and progress\n"_s;
    text += "Exported "_L1 + dates.dayAndTime(QDateTime::currentDateTimeUtc()) + u'\n';
    text += HVInfo::creditLine + u" · "_s + HVInfo::website().toString() + "\n\n"_L1;

    text += u"== PROGRESS: %1 of %2 lessons finished\n"_s.arg(finished.size())
                .arg(library.lessons().size());
    for (const Module &module : library.modules()) {
        const QList<Lesson> lessons = library.lessonsIn(module.id);
        const auto done = std::ranges::count_if(
            lessons, [&](const Lesson &lesson) { return finished.contains(lesson.id); });
        text += module.title + u": %1/%2 lessons"_s.arg(done).arg(lessons.size());
        if (const std::optional<QuizResult> best = bestScore(module.id))
            text += u", best quiz %1/%2"_s.arg(best->score).arg(best->total);
        text += u'\n';
    }

    text += "\n== BOOKMARKS\n"_L1;
    for (const Bookmark &bookmark : bookmarks())
        text += u"• "_s + title(bookmark.targetType, bookmark.targetID, library) + u'\n';

    text += "\n== NOTES\n"_L1;
    for (const Note &note : notes()) {
        text += "\n--- "_L1 + title(note.targetType, note.targetID, library) + " ("_L1
            + dates.dayAndTime(note.updated) + ")\n"_L1 + note.body + u'\n';
    }
    return text;
}
