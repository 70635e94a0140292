#include "screens/videos/player/playersession.h"

#include "kit/printing.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// A session whose waits take no time, and what it has asked of its web view.
class PlayerSessionTest : public testing::Test
{
protected:
    PlayerSessionTest()
    {
        session->setProbeDelay(0);
        QObject::connect(session.get(), &PlayerSession::loadRequested,
            [this](const QUrl &address) { asked.append(u"load "_s + address.toString()); });
        QObject::connect(session.get(), &PlayerSession::failedChanged,
            [this] { asked.append(session->hasFailed() ? u"failed"_s : u"not failed"_s); });
        QObject::connect(session.get(), &PlayerSession::probeRequested,
            [this](const QString &id) { asked.append(u"probe "_s + id); });
        QObject::connect(session.get(), &PlayerSession::leaving,
            [this](const QUrl &address) { asked.append(u"leave "_s + address.toString()); });
    }

    void show(const QString &id) { session->show(id, QUrl(u"https://player.example/"_s + id)); }

    // Lets pass what is due by now; timers fire in the order of their times.
    static void letWaitsPass()
    {
        bool passed = false;
        QTimer::singleShot(1, [&passed] { passed = true; });
        while (!passed)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    std::unique_ptr<PlayerSession> session = std::make_unique<PlayerSession>();
    QStringList asked;
};

} // namespace

TEST(PlayerSessionDefaults, ProbeAfterThreeSecondsAndGiveUpAfterSixty)
{
    const PlayerSession session;
    EXPECT_EQ(session.probeDelay(), 3000);
    EXPECT_EQ(session.timeout(), 60000);
    EXPECT_FALSE(session.hasFailed());
    EXPECT_EQ(session.loadedID(), QString());
}

TEST_F(PlayerSessionTest, LoadsAFilmAndRemembersIt)
{
    show(u"one"_s);
    EXPECT_EQ(asked, QStringList(u"load https://player.example/one"_s));
    EXPECT_EQ(session->loadedID(), u"one");
}

TEST_F(PlayerSessionTest, LoadsTheSameFilmButOnce)
{
    show(u"one"_s);
    show(u"one"_s);
    EXPECT_EQ(asked.size(), 1);
    show(u"two"_s);
    show(u"one"_s);
    EXPECT_EQ(asked.size(), 3);
}

TEST_F(PlayerSessionTest, AnotherFilmHasNotFailedBeforeItIsLoaded)
{
    show(u"one"_s);
    session->loadingFailed();
    QString seenAtLoading;
    QObject::connect(session.get(), &PlayerSession::loadRequested, [&] {
        seenAtLoading = session->loadedID() + (session->hasFailed() ? u" failed"_s : u" fresh"_s);
    });
    show(u"two"_s);
    EXPECT_EQ(seenAtLoading, u"two fresh");
    EXPECT_EQ(asked.mid(1),
        QStringList({ u"failed"_s, u"not failed"_s, u"load https://player.example/two"_s }));
}

TEST_F(PlayerSessionTest, FailsWithTheNetworkAndWithTheProcess)
{
    show(u"one"_s);
    session->loadingFailed();
    EXPECT_TRUE(session->hasFailed());
    show(u"two"_s);
    EXPECT_FALSE(session->hasFailed());
    session->processEnded();
    EXPECT_TRUE(session->hasFailed());
}

TEST_F(PlayerSessionTest, FailsIfNothingIsHeardOfThePage)
{
    session->setTimeout(1);
    show(u"one"_s);
    EXPECT_FALSE(session->hasFailed());
    const QSignalSpy failure(session.get(), &PlayerSession::failedChanged);
    while (failure.isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_TRUE(session->hasFailed());
}

TEST_F(PlayerSessionTest, APageThatHasComeIsNotWaitedForAnyLonger)
{
    session->setTimeout(0);
    show(u"one"_s);
    session->loadingFinished();
    session->progressed();
    letWaitsPass();
    EXPECT_FALSE(session->hasFailed());
}

TEST_F(PlayerSessionTest, LooksForTheBoxOnceThePageHasCome)
{
    show(u"one"_s);
    letWaitsPass();
    EXPECT_EQ(asked.size(), 1);
    session->loadingFinished();
    EXPECT_EQ(asked.size(), 1);
    letWaitsPass();
    EXPECT_EQ(asked.mid(1), QStringList(u"probe one"_s));
}

TEST_F(PlayerSessionTest, DoesNotLookForTheBoxOfAFilmThatHasBeenLeft)
{
    show(u"one"_s);
    session->loadingFinished();
    show(u"two"_s);
    letWaitsPass();
    EXPECT_FALSE(asked.contains(u"probe one"_s));
    EXPECT_FALSE(asked.contains(u"probe two"_s));
}

TEST_F(PlayerSessionTest, ASessionThatHasEndedLooksForNothing)
{
    show(u"one"_s);
    session->loadingFinished();
    session.reset();
    letWaitsPass();
    EXPECT_EQ(asked.size(), 1);
}

TEST_F(PlayerSessionTest, OnlyWordsInTheBoxAreAFailure)
{
    show(u"one"_s);
    for (const QVariant &result : { QVariant(), QVariant(u""_s), QVariant(u" \n\t\u00a0\r\n"_s),
             QVariant(false), QVariant(true), QVariant(7), QVariant(QVariantMap()),
             QVariant(QVariantList{ u"box"_s }) }) {
        session->probed(u"one"_s, result);
        EXPECT_FALSE(session->hasFailed());
    }
    session->probed(u"one"_s, u"\n Video unavailable "_s);
    EXPECT_TRUE(session->hasFailed());
}

TEST_F(PlayerSessionTest, TheBoxOfAFilmThatHasBeenLeftIsNoFailure)
{
    show(u"one"_s);
    show(u"two"_s);
    session->probed(u"one"_s, u"Video unavailable"_s);
    EXPECT_FALSE(session->hasFailed());
}

TEST_F(PlayerSessionTest, ALinkThatWouldReplaceThePageLeadsOut)
{
    const QUrl elsewhere(u"https://elsewhere.example/"_s);
    EXPECT_FALSE(session->allowsNavigation(elsewhere, true, true));
    EXPECT_EQ(asked, QStringList(u"leave https://elsewhere.example/"_s));
}

TEST_F(PlayerSessionTest, ThePagesOwnLoadsAndItsInnerFramesStay)
{
    const QUrl elsewhere(u"https://elsewhere.example/"_s);
    EXPECT_TRUE(session->allowsNavigation(elsewhere, false, true));
    EXPECT_TRUE(session->allowsNavigation(elsewhere, false, false));
    EXPECT_TRUE(session->allowsNavigation(elsewhere, true, false));
    EXPECT_TRUE(session->allowsNavigation({}, true, true));
    EXPECT_EQ(asked, QStringList());
}

TEST_F(PlayerSessionTest, AWindowLeadsOutIfItHasAnAddress)
{
    session->windowRequested(QUrl(u"https://elsewhere.example/"_s));
    session->windowRequested({});
    EXPECT_EQ(asked, QStringList(u"leave https://elsewhere.example/"_s));
}
