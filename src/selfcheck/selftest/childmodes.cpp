#include "selfcheck/selftest/childmodes.h"

#include "content/contentkind.h"
#include "content/text.h"
#include "selfcheck/selftest/selftest.h"
#include "selfcheck/standardoutput.h"
#include "store/hverror.h"
#include "store/userstore.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QUrl>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kCanNotOpen = 3;
constexpr int kCanNotWrite = 4;
constexpr int kCanNotStart = 98;
constexpr int kNoExecutable = 99;

std::optional<QString> valueBehind(QLatin1StringView option, const QStringList &arguments)
{
    const qsizetype at = arguments.indexOf(option);
    if (at < 0 || at + 1 >= arguments.size())
        return std::nullopt;
    return arguments.at(at + 1);
}

// The progress file at a path that counts from the working folder; nothing if it can't be opened.
std::unique_ptr<UserStore> openedStore(const QString &path)
{
    const QString file = path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
    try {
        return std::make_unique<UserStore>(QUrl::fromLocalFile(file));
    } catch (const HVError &) {
        return nullptr; // the exit status tells it
    }
}

void fill(UserStore &store)
{
    store.setComplete(u"m01.1"_s, true);
    store.setComplete(u"m03.2"_s, true);
    store.saveQuiz(u"m01"_s, 5, 6, QDateTime::currentDateTimeUtc());
    store.setBookmark(ContentKind::gear, u"tripod"_s, true);
    Note onLesson{
        .targetType = ContentKind::lesson, .targetID = u"m01.1"_s, .body = HVSelfTest::kWrittenNote
    };
    store.save(onLesson);
    Note onNothing{ .targetType = ContentKind::general,
        .targetID = ContentKind::general,
        .body = u"Buy a 50mm f/1.8 first."_s };
    store.save(onNothing);
}

void printDigest(const UserStore &store)
{
    printLine("DIGEST|"_L1 + store.digest());
}

int write(const QString &path)
{
    const std::unique_ptr<UserStore> store = openedStore(path);
    if (!store)
        return kCanNotOpen;
    try {
        fill(*store);
    } catch (const HVError &error) {
        printLine("ERROR|"_L1 + error.description());
        return kCanNotWrite;
    }
    printDigest(*store);
    return 0;
}

int read(const QString &path)
{
    const std::unique_ptr<UserStore> store = openedStore(path);
    if (!store)
        return kCanNotOpen;
    printDigest(*store);
    printLine(u"COUNTS|%1|%2|%3|%4"_s.arg(store->completedLessons().size())
                  .arg(store->quizResults().size())
                  .arg(store->bookmarks().size())
                  .arg(store->notes().size()));
    return 0;
}

} // namespace

namespace HVSelfTest {

std::optional<int> handleChild(const QStringList &arguments)
{
    if (const std::optional<QString> path = valueBehind("--hv-child-write"_L1, arguments))
        return write(*path);
    if (const std::optional<QString> path = valueBehind("--hv-child-read"_L1, arguments))
        return read(*path);
    return std::nullopt;
}

ChildResult runChild(const QStringList &arguments)
{
    const QString executable = QCoreApplication::applicationFilePath();
    if (executable.isEmpty())
        return { .status = kNoExecutable, .output = {} };

    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QString::fromLatin1(kMutationVariable));
    child.setProcessEnvironment(environment);
    child.setStandardErrorFile(QProcess::nullDevice());
    child.start(executable, arguments, QIODevice::ReadOnly);
    if (!child.waitForStarted())
        return { .status = kCanNotStart, .output = {} };
    child.waitForFinished(-1);
    return { .status = child.exitCode(),
        .output = Text::decodedUtf8(child.readAllStandardOutput()).value_or(QString()) };
}

} // namespace HVSelfTest
