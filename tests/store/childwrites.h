// What the second process writes, known to the tests that look for it afterwards.
#pragma once

#include <QSet>
#include <QString>

#include <array>

/// One write of a child: every kind of write that the store has is among twelve in a row.
struct ChildWrite {
    enum Kind {
        NewNote,
        FinishLesson,
        SetBookmark,
        SaveQuiz,
        ChangeNote,
        TakeBackLesson,
        RemoveBookmark,
        DeleteNote,
    };
    Kind kind;
    int subject; ///< The number of the write that made what this one is about; may be its own.
};

/// The write with a number, from 0.
[[nodiscard]] inline ChildWrite childWrite(int number)
{
    struct Step {
        ChildWrite::Kind kind;
        int back;
    };
    static constexpr std::array<Step, 12> steps = { {
        { ChildWrite::NewNote, 0 },
        { ChildWrite::FinishLesson, 0 },
        { ChildWrite::SetBookmark, 0 },
        { ChildWrite::SaveQuiz, 0 },
        { ChildWrite::ChangeNote, 4 },
        { ChildWrite::TakeBackLesson, 4 },
        { ChildWrite::RemoveBookmark, 4 },
        { ChildWrite::NewNote, 0 },
        { ChildWrite::DeleteNote, 1 },
        { ChildWrite::FinishLesson, 0 },
        { ChildWrite::SetBookmark, 0 },
        { ChildWrite::NewNote, 0 },
    } };
    const Step step = steps[size_t(number) % steps.size()];
    return { step.kind, number - step.back };
}

/// The key of what the write with this number made, "<name>.<number>". A name has no dot.
[[nodiscard]] inline QString childKey(const QString &name, int number)
{
    return name + u'.' + QString::number(number);
}

/// The body of a child's note: from a few bytes to several pages of the file.
[[nodiscard]] inline QString childNote(const QString &key)
{
    const int number = key.section(u'.', -1).toInt();
    return key + u'|' + QString(number * 997 % 15000, u'x');
}

/// The same after it was changed.
[[nodiscard]] inline QString changedChildNote(const QString &key)
{
    return childNote(key) + u"|changed";
}

/// What the file holds of a child after its first `count` writes, each as a kind and a key.
[[nodiscard]] inline QSet<QString> childRecords(const QString &name, int count)
{
    QSet<QString> records;
    for (int number = 0; number < count; ++number) {
        const ChildWrite write = childWrite(number);
        const QString key = childKey(name, write.subject);
        switch (write.kind) {
        case ChildWrite::NewNote:
            records.insert(u"note " + key);
            break;
        case ChildWrite::FinishLesson:
            records.insert(u"lesson " + key);
            break;
        case ChildWrite::SetBookmark:
            records.insert(u"bookmark " + key);
            break;
        case ChildWrite::SaveQuiz:
            records.insert(u"quiz " + key);
            break;
        case ChildWrite::ChangeNote:
            records.remove(u"note " + key);
            records.insert(u"changed note " + key);
            break;
        case ChildWrite::TakeBackLesson:
            records.remove(u"lesson " + key);
            break;
        case ChildWrite::RemoveBookmark:
            records.remove(u"bookmark " + key);
            break;
        case ChildWrite::DeleteNote:
            records.remove(u"note " + key);
            break;
        }
    }
    return records;
}
