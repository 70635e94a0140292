// A second process for the tests of the store.
//
//     child open <file>               opens the progress file as a store does by itself
//     child launch <file>             opens it as the launch does
//         Prints "ready", waits until its input ends, opens, and prints "opened" or the failure.
//
//     child write <file> <name> <n>   writes n times to the progress file
//     child answer <file> <name>      writes once for each line of its input
//     child launch-and-answer …       the same, after it has opened the file as the launch does
//         Prints the number of each write that came back, from 0; childwrites.h says what it wrote.
//         What finds the file busy is tried again, as a person would.
//
//     child lock <file>               holds the file, as another program may
//         Begins to write, prints "locked", and lets go when its input ends.

#include "store/rehearsal.h"
#include "store/userstore.h"

#include "store/childwrites.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

#include <sqlite3.h>

#include <cstdio>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

void say(const QString &line)
{
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

void waitForRelease()
{
    while (std::getchar() != EOF) { }
}

std::unique_ptr<UserStore> opened(const QUrl &file, bool asLaunch)
{
    return asLaunch ? Store::openProgressFile(file) : std::make_unique<UserStore>(file);
}

int open(const QUrl &file, bool asLaunch)
{
    say(u"ready"_s);
    waitForRelease();
    try {
        const auto store = opened(file, asLaunch);
        say(u"opened"_s);
        return 0;
    } catch (const HVError &error) {
        say(error.description());
        return 1;
    }
}

int lock(const QUrl &file)
{
    SQLiteDB db(file.toLocalFile());
    db.exec(u"BEGIN IMMEDIATE"_s);
    say(u"locked"_s);
    waitForRelease();
    db.exec(u"ROLLBACK"_s);
    return 0;
}

/// Tries again what finds the file busy, as a person would. Another child that writes without a
/// pause may keep it for longer than the store waits.
template <typename Call>
auto patiently(const Call &call)
{
    for (;;) {
        try {
            return call();
        } catch (const HVError &error) {
            if (error.sqliteCode() != SQLITE_BUSY)
                throw;
        }
    }
}

/// Writes under a name, one write after the other.
class Writer
{
public:
    Writer(UserStore &store, const QString &name)
        : m_store(store)
        , m_name(name)
    { }

    /// Makes the write with this number.
    void make(int number)
    {
        patiently([&] { tryToMake(number); });
    }

private:
    void tryToMake(int number)
    {
        const ChildWrite write = childWrite(number);
        const QString key = childKey(m_name, write.subject);
        switch (write.kind) {
        case ChildWrite::NewNote: {
            Note note;
            note.targetType = u"lesson"_s;
            note.targetID = key;
            note.body = childNote(key);
            m_store.save(note);
            m_notes.insert(write.subject, note);
            break;
        }
        case ChildWrite::FinishLesson:
            return m_store.setComplete(key, true);
        case ChildWrite::SetBookmark:
            return m_store.setBookmark(u"gear"_s, key, true);
        case ChildWrite::SaveQuiz:
            return m_store.saveQuiz(key, 4, 5, QDateTime::currentDateTimeUtc());
        case ChildWrite::ChangeNote: {
            Note note = m_notes.value(write.subject);
            note.body = changedChildNote(key);
            return m_store.save(note);
        }
        case ChildWrite::TakeBackLesson:
            return m_store.setComplete(key, false);
        case ChildWrite::RemoveBookmark:
            return m_store.setBookmark(u"gear"_s, key, false);
        case ChildWrite::DeleteNote:
            return m_store.deleteNote(m_notes.take(write.subject).id);
        }
    }

    UserStore &m_store;
    QString m_name;
    QHash<int, Note> m_notes; ///< By the number of the write that made them.
};

/// Writes as often as `isWanted`, asked before each write, says so.
int writeWhile(UserStore &store, const QString &name, const std::function<bool(int)> &isWanted)
{
    Writer writer(store, name);
    for (int number = 0; isWanted(number); ++number) {
        writer.make(number);
        say(QString::number(number));
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString command = arguments.value(1);
    const QUrl file = QUrl::fromLocalFile(arguments.value(2));
    if (command == "answer"_L1 || command == "launch-and-answer"_L1) {
        const auto store = patiently([&] { return opened(file, command != "answer"_L1); });
        return writeWhile(*store, arguments.value(3), [](int) { return std::getchar() != EOF; });
    }
    if (command == "write"_L1) {
        const auto store = patiently([&] { return opened(file, false); });
        return writeWhile(*store, arguments.value(3),
            [count = arguments.value(4).toInt()](int number) { return number < count; });
    }
    if (command == "lock"_L1)
        return lock(file);
    return open(file, command == "launch"_L1);
}
