#include "shell/launch/singleinstance.h"

#include "store/storetesting.h"
#include "support/environment.h"
#include "support/ordinaryuser.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QProcess>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <future>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

// A process or a call that hasn't got there after so long hangs.
constexpr int kPatience = 60000; // ms

// Another process; ended with the object, without any chance to tidy up.
class Other
{
public:
    explicit Other(const QStringList &arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(HV_SINGLEINSTANCE_TEST_CHILD), arguments);
    }
    ~Other() { kill(); }
    Q_DISABLE_COPY_MOVE(Other)

    // "first" or "later".
    [[nodiscard]] QString rank()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(kPatience)) { }
        return QString::fromUtf8(m_process.readLine()).trimmed();
    }

    [[nodiscard]] bool endsWithin(int milliseconds)
    {
        return m_process.waitForFinished(milliseconds);
    }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

// What an instance is called with.
class Calls
{
public:
    explicit Calls(const SingleInstance &instance)
    {
        QObject::connect(&instance, &SingleInstance::called, &m_receiver,
            [this](const SingleInstance::Call &call) {
                m_tokens.append(call.activationToken);
                m_requests.append(call.request);
            });
    }

    // The tokens so far, as soon as there are so many.
    [[nodiscard]] QByteArrayList waitFor(qsizetype count)
    {
        QTimer patience; // also wakes the loop below
        patience.setSingleShot(true);
        patience.start(kPatience);
        while (m_tokens.size() < count && patience.isActive())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return m_tokens;
    }

    [[nodiscard]] const QByteArrayList &requests() const { return m_requests; }

private:
    QByteArrayList m_tokens;
    QByteArrayList m_requests;
    QObject m_receiver; // last, so that no call reaches a list that has gone
};

class SingleInstanceTest : public ::testing::Test
{
protected:
    // Calls the first from a thread of its own, since it waits for the answer of this one's event
    // loop.
    [[nodiscard]] std::future<void> call(
        const QByteArray &token, const QByteArray &request = {}) const
    {
        return std::async(std::launch::async,
            [path = folder.path(), call = SingleInstance::Call{ token, request }] {
                SingleInstance(path).callFirst(call);
            });
    }

    [[nodiscard]] QString lockFile() const { return folder.path(u"crvn-halvorin.lock"_s); }
    [[nodiscard]] QString socketFile() const { return folder.path(u"crvn-halvorin.socket"_s); }

    Folder folder;
};

} // namespace

// Who is the first

TEST_F(SingleInstanceTest, TheFirstInAFolderIsFirst)
{
    const SingleInstance instance(folder.path());
    EXPECT_TRUE(instance.isFirst());
}

TEST_F(SingleInstanceTest, TheSecondInAFolderIsNot)
{
    const SingleInstance first(folder.path());
    const SingleInstance second(folder.path());
    EXPECT_FALSE(second.isFirst());
    EXPECT_TRUE(first.isFirst());
}

TEST_F(SingleInstanceTest, AnotherProcessThatIsThereAlreadyIsFirst)
{
    Other other({ u"hold"_s, folder.path() });
    ASSERT_EQ(other.rank(), u"first"_s);
    EXPECT_FALSE(SingleInstance(folder.path()).isFirst());
}

TEST_F(SingleInstanceTest, AnotherProcessThatComesLaterIsNot)
{
    const SingleInstance first(folder.path());
    Other other({ u"hold"_s, folder.path() });
    EXPECT_EQ(other.rank(), u"later"_s);
}

TEST_F(SingleInstanceTest, EachFolderHasAFirstOfItsOwn)
{
    const Folder another;
    const SingleInstance here(folder.path());
    const SingleInstance there(another.path());
    EXPECT_TRUE(here.isFirst());
    EXPECT_TRUE(there.isFirst());
}

TEST_F(SingleInstanceTest, UsesTheRuntimeFolderOfTheUser)
{
    const EnvironmentVariable runtime("XDG_RUNTIME_DIR", folder.path());
    const SingleInstance first;
    EXPECT_TRUE(first.isFirst());
    EXPECT_FALSE(SingleInstance(folder.path()).isFirst());
}

TEST_F(SingleInstanceTest, UsesTheDataFolderWhereTheRuntimeFolderIsUnfitOrUnset)
{
    // given: a folder that others may look into, or none, and no place for temporary files
    const QString unfit = folder.path(u"run"_s);
    ASSERT_TRUE(QDir().mkdir(unfit));
    ASSERT_TRUE(QFile::setPermissions(unfit, QFile::Permissions(0x7755)));
    writeFile(folder.path(u"no folder"_s), "");
    const EnvironmentVariable temporary("TMPDIR", folder.path(u"no folder"_s));
    const EnvironmentVariable data("XDG_DATA_HOME", folder.path(u"data"_s));
    for (const std::optional<QString> &named : { std::optional(unfit), std::optional<QString>() }) {
        const EnvironmentVariable runtime("XDG_RUNTIME_DIR", named);
        const QString before = QDir::currentPath();
        // when: each of two launches has a working folder of its own
        ASSERT_TRUE(QDir::setCurrent(folder.path()));
        const SingleInstance first;
        ASSERT_TRUE(QDir::setCurrent(unfit));
        const SingleInstance second;
        QDir::setCurrent(before);
        // then
        EXPECT_TRUE(first.isFirst());
        EXPECT_FALSE(second.isFirst());
        EXPECT_FALSE(SingleInstance(folder.path(u"data/CRVN Halvorin"_s)).isFirst());
    }
}

TEST_F(SingleInstanceTest, TheNextIsFirstOnceTheFirstHasEnded)
{
    {
        const SingleInstance first(folder.path());
        ASSERT_TRUE(first.isFirst());
    }
    EXPECT_TRUE(SingleInstance(folder.path()).isFirst());
}

TEST_F(SingleInstanceTest, OneThatWasNotFirstLeavesTheFirstItsPlace)
{
    const SingleInstance first(folder.path());
    {
        const SingleInstance second(folder.path());
        ASSERT_FALSE(second.isFirst());
    }
    EXPECT_FALSE(SingleInstance(folder.path()).isFirst());
}

TEST_F(SingleInstanceTest, LeavesNothingInTheFolder)
{
    {
        const SingleInstance first(folder.path());
        const SingleInstance second(folder.path());
        EXPECT_NE(fingerprint(folder.path()), Fingerprint());
    }
    EXPECT_EQ(fingerprint(folder.path()), Fingerprint());
}

// What keeps nobody out

TEST_F(SingleInstanceTest, TheLockOfAKilledProcessIsNoHindrance)
{
    // given
    Other other({ u"hold"_s, folder.path() });
    ASSERT_EQ(other.rank(), u"first"_s);
    other.kill();
    ASSERT_TRUE(QFileInfo::exists(lockFile()));
    ASSERT_TRUE(QFileInfo::exists(socketFile()));
    // then
    EXPECT_TRUE(SingleInstance(folder.path()).isFirst());
}

TEST_F(SingleInstanceTest, AnInstanceThatFollowsAKilledOneCanBeCalled)
{
    // given
    Other other({ u"hold"_s, folder.path() });
    ASSERT_EQ(other.rank(), u"first"_s);
    other.kill();
    const SingleInstance first(folder.path());
    Calls calls(first);
    // when
    const std::future<void> caller = call("token");
    // then
    EXPECT_EQ(calls.waitFor(1), (QByteArrayList{ "token" }));
}

TEST_F(SingleInstanceTest, AnEmptyLockOfAProcessKilledWhileItMadeItIsNoHindrance)
{
    writeFile(lockFile(), "");
    EXPECT_TRUE(SingleInstance(folder.path()).isFirst());
}

TEST_F(SingleInstanceTest, AMissingFolderKeepsNobodyOut)
{
    EXPECT_TRUE(SingleInstance(folder.path(u"missing"_s)).isFirst());
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"missing"_s)));
}

TEST_F(SingleInstanceTest, AFileInThePlaceOfTheFolderKeepsNobodyOut)
{
    writeFile(folder.path(u"file"_s), "");
    EXPECT_TRUE(SingleInstance(folder.path(u"file"_s)).isFirst());
}

TEST_F(SingleInstanceTest, AFolderThatCanNotBeWrittenToKeepsNobodyOut)
{
    // given
    constexpr auto readOnly = QFile::Permissions(0x5555);
    ASSERT_TRUE(QFile::setPermissions(folder.path(), readOnly));
    const OrdinaryUser user;
    // then
    const SingleInstance one(folder.path());
    const SingleInstance other(folder.path());
    EXPECT_TRUE(one.isFirst());
    EXPECT_TRUE(other.isFirst());
    EXPECT_EQ(fingerprint(folder.path()), Fingerprint());
}

TEST_F(SingleInstanceTest, TheLockOfAKilledProcessIsNoHindranceWhereItCanNotBeTakenAway)
{
    // given
    Other other({ u"hold"_s, folder.path() });
    ASSERT_EQ(other.rank(), u"first"_s);
    other.kill();
    constexpr auto readOnly = QFile::Permissions(0x5555);
    ASSERT_TRUE(QFile::setPermissions(folder.path(), readOnly));
    bool isFirst = false;
    // when
    {
        const OrdinaryUser user;
        isFirst = SingleInstance(folder.path()).isFirst();
    }
    // then
    EXPECT_TRUE(isFirst);
    QFile::setPermissions(folder.path(), QFile::Permissions(0x7700)); // to be cleared away
}

// Who else may have put something there

TEST_F(SingleInstanceTest, AFolderThatOthersCanWriteToHasNeitherLockNorSocket)
{
    for (const auto rights : { QFile::Permissions(0x7777), QFile::Permissions(0x7770) }) {
        ASSERT_TRUE(QFile::setPermissions(folder.path(), rights));
        const SingleInstance one(folder.path());
        const SingleInstance other(folder.path());
        EXPECT_TRUE(one.isFirst());
        EXPECT_TRUE(other.isFirst());
        EXPECT_EQ(fingerprint(folder.path()), Fingerprint());
    }
}

TEST_F(SingleInstanceTest, AFolderOfAnotherUserHasNeitherLockNorSocket)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "Only root can give a folder away.";
    ASSERT_EQ(::chown(qPrintable(folder.path()), 65534, 65534), 0);
    const SingleInstance one(folder.path());
    EXPECT_TRUE(one.isFirst());
    EXPECT_EQ(fingerprint(folder.path()), Fingerprint());
}

TEST_F(SingleInstanceTest, LinksInThePlacesOfLockAndSocketAreReplacedAndLeadNowhere)
{
    // given
    const Folder elsewhere;
    writeFile(elsewhere.path(u"precious"_s), "notes");
    const Fingerprint before = fingerprint(elsewhere.path());
    for (const QString &target : { u"precious"_s, u"nothing yet"_s }) {
        ASSERT_TRUE(QFile::link(elsewhere.path(target), lockFile()));
        ASSERT_TRUE(QFile::link(elsewhere.path(target), socketFile()));
        // when
        const SingleInstance first(folder.path());
        Calls calls(first);
        const std::future<void> caller = call("token");
        // then
        EXPECT_TRUE(first.isFirst());
        EXPECT_EQ(calls.waitFor(1), (QByteArrayList{ "token" }));
        EXPECT_FALSE(QFileInfo(lockFile()).isSymbolicLink());
        EXPECT_FALSE(QFileInfo(socketFile()).isSymbolicLink());
        EXPECT_EQ(fingerprint(elsewhere.path()), before);
    }
}

TEST_F(SingleInstanceTest, APipeInThePlaceOfTheLockKeepsNobodyWaiting)
{
    ASSERT_EQ(::mkfifo(qPrintable(lockFile()), 0600), 0);
    Other other({ u"hold"_s, folder.path() });
    EXPECT_EQ(other.rank(), u"first"_s);
}

TEST_F(SingleInstanceTest, AFolderInThePlaceOfTheLockKeepsNobodyOut)
{
    ASSERT_TRUE(QDir().mkpath(lockFile()));
    EXPECT_TRUE(SingleInstance(folder.path()).isFirst());
}

TEST_F(SingleInstanceTest, TheLockOfAnotherUsersProcessKeepsNobodyOut)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "Only root can make a file in another's name.";
    // given: one that names a process that is alive
    QLockFile lock(lockFile());
    ASSERT_TRUE(lock.tryLock());
    ASSERT_EQ(::chown(qPrintable(lockFile()), 65534, 65534), 0);
    // then
    EXPECT_TRUE(SingleInstance(folder.path()).isFirst());
}

TEST_F(SingleInstanceTest, ASocketOfAnotherUserIsNotCalled)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "Only root can listen in another's name.";
    // given: a first of ours, and a stranger who listens in its place
    QLockFile lock(lockFile());
    ASSERT_TRUE(lock.tryLock());
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::Permissions(0x7777)));
    QLocalServer stranger;
    {
        const OrdinaryUser user;
        ASSERT_TRUE(stranger.listen(socketFile()));
    }
    ASSERT_EQ(::chown(qPrintable(socketFile()), 0, 0), 0);
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::Permissions(0x7700)));
    // when
    SingleInstance later(folder.path());
    ASSERT_FALSE(later.isFirst());
    later.callFirst({ .activationToken = "token", .request = "continue" });
    // then
    EXPECT_TRUE(later.isFirst());
    ASSERT_TRUE(stranger.waitForNewConnection(kPatience));
    QLocalSocket *caller = stranger.nextPendingConnection();
    caller->waitForDisconnected(kPatience);
    EXPECT_EQ(caller->readAll(), QByteArray());
}

TEST_F(SingleInstanceTest, AnotherUserCanNotCallTheFirst)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "Only root can call in another's name.";
    // given: a socket that lets everybody in
    const SingleInstance first(folder.path());
    Calls calls(first);
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::Permissions(0x7755)));
    ASSERT_EQ(::chmod(qPrintable(socketFile()), 0777), 0);
    QLocalSocket stranger;
    {
        const OrdinaryUser user;
        stranger.connectToServer(socketFile());
        ASSERT_TRUE(stranger.waitForConnected(kPatience));
    }
    stranger.write("continue token\n");
    // when: a call of ours behind it
    const std::future<void> caller = call("ours");
    // then
    EXPECT_EQ(calls.waitFor(1), (QByteArrayList{ "ours" }));
    EXPECT_EQ(stranger.readAll(), QByteArray());
}

// Calling the first

TEST_F(SingleInstanceTest, ACallReachesTheFirstWithItsToken)
{
    const SingleInstance first(folder.path());
    Calls calls(first);
    const std::future<void> caller = call("kde-1234_TIME5678");
    EXPECT_EQ(calls.waitFor(1), (QByteArrayList{ "kde-1234_TIME5678" }));
}

TEST_F(SingleInstanceTest, ACallWithAnEmptyTokenReachesTheFirst)
{
    const SingleInstance first(folder.path());
    Calls calls(first);
    const std::future<void> caller = call({});
    EXPECT_EQ(calls.waitFor(1), (QByteArrayList{ QByteArray() }));
}

TEST_F(SingleInstanceTest, ACallFromAnotherProcessReachesTheFirst)
{
    const SingleInstance first(folder.path());
    Calls calls(first);
    Other other({ u"call"_s, folder.path(), u"token"_s });
    EXPECT_EQ(calls.waitFor(1), (QByteArrayList{ "token" }));
    EXPECT_EQ(other.rank(), u"later"_s);
    EXPECT_EQ(other.rank(), u"later"_s);
}

TEST_F(SingleInstanceTest, ALongTokenArrivesWhole)
{
    const QByteArray token(4096, 't');
    const SingleInstance first(folder.path());
    Calls calls(first);
    const std::future<void> caller = call(token);
    EXPECT_EQ(calls.waitFor(1), (QByteArrayList{ token }));
}

TEST_F(SingleInstanceTest, ARequestReachesTheFirstBesideTheToken)
{
    const SingleInstance first(folder.path());
    Calls calls(first);
    const std::future<void> caller = call("gnome shell 12_TIME34", "continue");
    EXPECT_EQ(calls.waitFor(1), (QByteArrayList{ "gnome shell 12_TIME34" }));
    EXPECT_EQ(calls.requests(), (QByteArrayList{ "continue" }));
}

TEST_F(SingleInstanceTest, ARequestWithoutATokenReachesTheFirst)
{
    const SingleInstance first(folder.path());
    Calls calls(first);
    const std::future<void> caller = call({}, "exposure");
    EXPECT_EQ(calls.waitFor(1), (QByteArrayList{ QByteArray() }));
    EXPECT_EQ(calls.requests(), (QByteArrayList{ "exposure" }));
}

TEST_F(SingleInstanceTest, EveryCallReachesTheFirst)
{
    const SingleInstance first(folder.path());
    Calls calls(first);
    const std::future<void> callers[] = { call("one"), call("two"), call("three") };
    QByteArrayList tokens = calls.waitFor(3);
    std::sort(tokens.begin(), tokens.end());
    EXPECT_EQ(tokens, (QByteArrayList{ "one", "three", "two" }));
}

TEST_F(SingleInstanceTest, ACallerThatKeepsTheLineDoesNotKeepOthersFromCalling)
{
    // given
    const SingleInstance first(folder.path());
    Calls calls(first);
    QLocalSocket silent;
    silent.connectToServer(socketFile());
    ASSERT_TRUE(silent.waitForConnected(kPatience));
    // when
    const std::future<void> caller = call("token");
    // then
    EXPECT_EQ(calls.waitFor(1), (QByteArrayList{ "token" }));
}

TEST_F(SingleInstanceTest, ItsOwnEndIsNoCall)
{
    // given
    int calls = 0;
    auto first = std::make_unique<SingleInstance>(folder.path());
    QObject receiver;
    QObject::connect(first.get(), &SingleInstance::called, &receiver, [&] { ++calls; });
    QLocalSocket silent;
    silent.connectToServer(socketFile());
    ASSERT_TRUE(silent.waitForConnected(kPatience));
    // and: a call behind it, so that the silent one has been taken for certain
    const std::future<void> caller = call({});
    while (calls == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    // when
    first.reset();
    // then
    EXPECT_EQ(calls, 1);
}

TEST_F(SingleInstanceTest, ACallWaitsForAFirstThatDoesNotListenYet)
{
    // given: a first that has its lock and not its socket, and a caller that doesn't give up
    QLockFile lock(lockFile());
    ASSERT_TRUE(lock.tryLock());
    Other other({ u"call"_s, folder.path(), u"token"_s });
    ASSERT_EQ(other.rank(), u"later"_s);
    ASSERT_FALSE(other.endsWithin(50));
    // when
    QLocalServer server;
    ASSERT_TRUE(server.listen(socketFile()));
    // then
    ASSERT_TRUE(server.waitForNewConnection(kPatience));
    QLocalSocket *caller = server.nextPendingConnection();
    while (!caller->canReadLine() && caller->waitForReadyRead(kPatience)) { }
    EXPECT_EQ(caller->readLine(), " token\n");
}

TEST_F(SingleInstanceTest, ACallThatNobodyTakesEnds)
{
    // given: a first that has its lock and never a socket
    QLockFile lock(lockFile());
    ASSERT_TRUE(lock.tryLock());
    // then: it gives up, for the user is waiting
    SingleInstance second(folder.path());
    ASSERT_FALSE(second.isFirst());
    second.callFirst({ .activationToken = "token" });
    EXPECT_FALSE(QFileInfo::exists(socketFile()));
}

TEST_F(SingleInstanceTest, ACallerTakesThePlaceOfAFirstThatEndsBeforeItListens)
{
    // given
    QLockFile lock(lockFile());
    ASSERT_TRUE(lock.tryLock());
    Other other({ u"call"_s, folder.path(), u"token"_s });
    ASSERT_EQ(other.rank(), u"later"_s);
    // when
    lock.unlock();
    // then
    EXPECT_EQ(other.rank(), u"first"_s);
}

TEST_F(SingleInstanceTest, ACallerTakesThePlaceOfAFirstThatEndsWithoutAnAnswer)
{
    // given: a first that is asked to end as the call comes in
    QLockFile lock(lockFile());
    ASSERT_TRUE(lock.tryLock());
    QLocalServer server;
    ASSERT_TRUE(server.listen(socketFile()));
    Other other({ u"call"_s, folder.path(), u"token"_s });
    ASSERT_EQ(other.rank(), u"later"_s);
    ASSERT_TRUE(server.waitForNewConnection(kPatience));
    // when
    delete server.nextPendingConnection();
    server.close();
    lock.unlock();
    // then
    EXPECT_EQ(other.rank(), u"first"_s);
}

TEST_F(SingleInstanceTest, ACallerThatTookThePlaceOfTheFirstCanBeCalled)
{
    // given
    auto lock = std::make_unique<QLockFile>(lockFile());
    ASSERT_TRUE(lock->tryLock());
    SingleInstance second(folder.path());
    ASSERT_FALSE(second.isFirst());
    // when
    lock.reset();
    second.callFirst({ .activationToken = "for the one that has ended" });
    // then
    ASSERT_TRUE(second.isFirst());
    Calls calls(second);
    const std::future<void> caller = call("token");
    EXPECT_EQ(calls.waitFor(1), (QByteArrayList{ "token" }));
}

TEST_F(SingleInstanceTest, NobodyButTheUserCanCall)
{
    const SingleInstance first(folder.path());
    const QFile::Permissions others
        = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_FALSE(QFile::permissions(socketFile()) & others);
}
