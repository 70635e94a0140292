#include "kit/netstatus.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using Reachability = QNetworkInformation::Reachability;

namespace {

class NetStatusTest : public testing::Test
{
protected:
    ~NetStatusTest() override { NetStatus::setOverride({}); }
};

} // namespace

TEST_F(NetStatusTest, IsOnlineUntilThePlatformSaysOtherwise)
{
    EXPECT_TRUE(NetStatus().isOnline());
}

TEST_F(NetStatusTest, OnlyAMachineThatIsCutOffIsOffline)
{
    EXPECT_FALSE(NetStatus::countsAsOnline(Reachability::Disconnected));
    for (const Reachability reachability :
        { Reachability::Unknown, Reachability::Local, Reachability::Site, Reachability::Online })
        EXPECT_TRUE(NetStatus::countsAsOnline(reachability));
}

TEST_F(NetStatusTest, TellsWhenTheAnswerChangesAndOnlyThen)
{
    NetStatus status;
    const QSignalSpy changes(&status, &NetStatus::onlineChanged);
    status.follow(Reachability::Site);
    EXPECT_EQ(changes.count(), 0);

    status.follow(Reachability::Disconnected);
    EXPECT_FALSE(status.isOnline());
    status.follow(Reachability::Disconnected);
    EXPECT_EQ(changes.count(), 1);

    status.follow(Reachability::Online);
    EXPECT_TRUE(status.isOnline());
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(NetStatusTest, AForcedAnswerHoldsWhateverThePlatformSays)
{
    NetStatus &status = NetStatus::shared();
    const QSignalSpy changes(&status, &NetStatus::onlineChanged);

    NetStatus::setOverride(false);
    EXPECT_FALSE(status.isOnline());
    EXPECT_EQ(NetStatus::forcedAnswer(), false);
    status.follow(Reachability::Online);
    EXPECT_FALSE(status.isOnline());
    EXPECT_EQ(changes.count(), 1);

    NetStatus::setOverride(true);
    status.follow(Reachability::Disconnected);
    EXPECT_TRUE(status.isOnline());
    EXPECT_EQ(changes.count(), 2);

    NetStatus::setOverride({});
    EXPECT_FALSE(status.isOnline());
    EXPECT_EQ(NetStatus::forcedAnswer(), std::nullopt);
    status.follow(Reachability::Online);
    EXPECT_EQ(changes.count(), 4);
}

TEST_F(NetStatusTest, StartsOnce)
{
    NetStatus status;
    status.start();
    QNetworkInformation *platform = QNetworkInformation::instance();
    if (!platform)
        GTEST_SKIP() << "Qt has no network monitor on this platform";
    EXPECT_EQ(status.isOnline(), NetStatus::countsAsOnline(platform->reachability()));

    status.start();
    const QSignalSpy changes(&status, &NetStatus::onlineChanged);
    status.follow(Reachability::Online);
    const qsizetype before = changes.count();
    Q_EMIT platform->reachabilityChanged(Reachability::Disconnected);
    EXPECT_FALSE(status.isOnline());
    EXPECT_EQ(changes.count(), before + 1);
}
