// A second process for the tests of the store.
//
//     child open <file>               opens the progress file as a store does by itself
//     child launch <file>             opens it as the launch does
//         Prints "ready", waits until its input ends, opens, and prints "opened" or the failure.
//
//     child write <file> <name> <n>   writes n times to the progress file
//     child answer <file> <name>      writes once for each line of its input
//         Prints a line after each write that came back: the kind of record and its key, which is
//         made of the name and the number of the write. A write that finds the file busy is tried
//         again, as a person would.
//
//     child lock <file>               holds the file, as another program may
//         Begins to write, prints "locked", and lets go when its input ends.

#include "store/rehearsal.h"
#include "store/userstore.h"

#include "store/childnote.h"

#include <QCoreApplication>
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

int open(const QUrl &file, bool asLaunch)
{
    say(u"ready"_s);
    waitForRelease();
    try {
        const auto store
            = asLaunch ? Store::openProgressFile(file) : std::make_unique<UserStore>(file);
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

/// Makes the write with this number and returns what to print about it.
QString write(UserStore &store, const QString &name, int number)
{
    const QString key = name + u'.' + QString::number(number);
    switch (number % 4) {
    case 0: {
        Note note;
        note.targetType = u"lesson"_s;
        note.targetID = key;
        note.body = childNote(key);
        store.save(note);
        return u"note "_s + key;
    }
    case 1:
        store.setComplete(key, true);
        return u"lesson "_s + key;
    case 2:
        store.setBookmark(u"gear"_s, key, true);
        return u"bookmark "_s + key;
    default:
        store.saveQuiz(key, 4, 5, QDateTime::currentDateTimeUtc());
        return u"quiz "_s + key;
    }
}

/// Writes as often as `isWanted`, asked before each write, says so.
int writeWhile(const QUrl &file, const QString &name, const std::function<bool(int)> &isWanted)
{
    UserStore store(file);
    for (int number = 0; isWanted(number); ++number) {
        QString done;
        while (done.isEmpty()) {
            try {
                done = write(store, name, number);
            } catch (const HVError &error) {
                if (error.sqliteCode() != SQLITE_BUSY)
                    throw;
            }
        }
        say(done);
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
    if (command == "answer"_L1)
        return writeWhile(file, arguments.value(3), [](int) { return std::getchar() != EOF; });
    if (command == "write"_L1) {
        return writeWhile(file, arguments.value(3),
            [count = arguments.value(4).toInt()](int number) { return number < count; });
    }
    if (command == "lock"_L1)
        return lock(file);
    return open(file, command == "launch"_L1);
}
