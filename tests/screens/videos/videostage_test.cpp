#include "screens/videos/private/videostage.h"

#include "content/contentlibrary.h"
#include "kit/netstatus.h"
#include "kit/printing.h"
#include "screens/coursetesting.h"
#include "screens/videos/private/videolist.h"
#include "screens/videos/private/videoreading.h"
#include "shell/appmodel.h"
#include "support/environment.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using CourseTesting::Course;
using CourseTesting::World;

namespace {

class VideoAdapters : public testing::Test
{
protected:
    VideoAdapters() { NetStatus::setOverride(true); }
    ~VideoAdapters() override { NetStatus::setOverride({}); }

    World world{ Course::Films };
    AppModel &model = AppModel::shared();
};

// The web engine may start, whoever runs the test.
class VideoStageTest : public VideoAdapters
{
protected:
    EnvironmentVariable sandbox{ "QTWEBENGINE_DISABLE_SANDBOX", u"1"_s };
    VideoStage stage;
};

} // namespace

TEST_F(VideoStageTest, PlaysTheFilmOfThePage)
{
    EXPECT_EQ(stage.content(), VideoStage::Nothing);
    EXPECT_EQ(stage.playing(), QStringList());
    stage.setVideoID(u"abcdefghijk"_s);
    EXPECT_EQ(stage.content(), VideoStage::Player);
    EXPECT_EQ(stage.playing(), QStringList(u"abcdefghijk"_s));

    const HVVideo::EmbedRequest request
        = HVVideo::embedRequest(*ContentLibrary::shared().video(u"abcdefghijk"_s));
    EXPECT_EQ(stage.address(), request.url);
    EXPECT_EQ(stage.headers(),
        QVariantMap({ { u"Referer"_s, QString::fromUtf8(request.headers.first().second) } }));
    EXPECT_EQ(stage.timeout(), 60000);
}

TEST_F(VideoStageTest, WithoutANetworkThereIsNoPlayer)
{
    stage.setVideoID(u"abcdefghijk"_s);
    const QSignalSpy changes(&stage, &VideoStage::changed);
    NetStatus::setOverride(false);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(stage.content(), VideoStage::Offline);
    EXPECT_EQ(stage.playing(), QStringList());

    NetStatus::setOverride(true);
    EXPECT_EQ(stage.content(), VideoStage::Player);
    EXPECT_EQ(stage.playing(), QStringList(u"abcdefghijk"_s));
}

TEST_F(VideoStageTest, AFailureStaysUntilAnotherFilmIsChosen)
{
    model.setVideoID(u"abcdefghijk"_s);
    stage.setVideoID(u"abcdefghijk"_s);
    stage.fail();
    EXPECT_EQ(stage.content(), VideoStage::Failure);
    EXPECT_EQ(stage.playing(), QStringList());
    model.setVideoID(u"abcdefghijk"_s);
    EXPECT_EQ(stage.content(), VideoStage::Failure);

    model.setVideoID(u"shutters_01"_s);
    stage.setVideoID(u"shutters_01"_s);
    EXPECT_EQ(stage.content(), VideoStage::Player);
    EXPECT_EQ(stage.playing(), QStringList(u"shutters_01"_s));
}

TEST_F(VideoStageTest, TheFilmThatIsLeftGetsNoPlayerAgain)
{
    model.setVideoID(u"abcdefghijk"_s);
    stage.setVideoID(u"abcdefghijk"_s);
    stage.fail();
    QStringList played;
    QObject::connect(&stage, &VideoStage::changed, [&] { played += stage.playing(); });
    model.setVideoID(u"shutters_01"_s);
    stage.setVideoID(u"shutters_01"_s);
    EXPECT_FALSE(played.contains(u"abcdefghijk"_s));
    EXPECT_TRUE(played.contains(u"shutters_01"_s));
}

TEST_F(VideoStageTest, ChoosingTheFirstFilmThatIsShownAnywayTriesAgain)
{
    stage.setVideoID(u"shutters_01"_s);
    stage.fail();
    model.setVideoID(u"shutters_01"_s);
    EXPECT_EQ(stage.content(), VideoStage::Player);
}

TEST_F(VideoStageTest, AFailureWithoutANetworkIsTheNetworks)
{
    stage.setVideoID(u"shutters_01"_s);
    stage.fail();
    NetStatus::setOverride(false);
    EXPECT_EQ(stage.content(), VideoStage::Offline);
    NetStatus::setOverride(true);
    EXPECT_EQ(stage.content(), VideoStage::Failure);
}

TEST_F(VideoStageTest, WhileSomebodyTypesTheFilmsWaitForAPause)
{
    stage.setVideoID(u"shutters_01"_s);
    stage.setVideoID(u"abcdefghijk"_s);
    EXPECT_EQ(stage.content(), VideoStage::Player);
    EXPECT_EQ(stage.playing(), QStringList());
    stage.setVideoID(u"nopinhole_2"_s);
    EXPECT_EQ(stage.playing(), QStringList());
    QSignalSpy changes(&stage, &VideoStage::changed);
    ASSERT_TRUE(changes.wait());
    EXPECT_EQ(stage.playing(), QStringList(u"nopinhole_2"_s));
}

TEST_F(VideoStageTest, WhatIsChosenPlaysAtOnce)
{
    stage.setVideoID(u"shutters_01"_s);
    model.setVideoID(u"abcdefghijk"_s);
    stage.setVideoID(u"abcdefghijk"_s);
    EXPECT_EQ(stage.playing(), QStringList(u"abcdefghijk"_s));
}

#ifdef Q_OS_UNIX
TEST_F(VideoAdapters, WhereTheWebEngineWouldEndTheProgramThereIsNoPlayer)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs to be root";
    const EnvironmentVariable sandbox("QTWEBENGINE_DISABLE_SANDBOX", std::nullopt);
    VideoStage stage;
    stage.setVideoID(u"shutters_01"_s);
    EXPECT_EQ(stage.content(), VideoStage::Failure);
    EXPECT_EQ(stage.playing(), QStringList());
}
#endif

TEST_F(VideoAdapters, TheListShowsTheFilmsOfTheModules)
{
    VideoList list;
    const QAbstractItemModelTester tester(
        &list, QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.selectedRow(), -1);
    EXPECT_EQ(list.openID(), u"shutters_01");
    EXPECT_EQ(list.caption(u"light"_s), u"LIGHT AND THE CAMERA");
    EXPECT_EQ(list.caption(u"gone"_s), QString());

    list.open(1);
    EXPECT_EQ(model.videoID(), u"nopinhole_2"_s);
    EXPECT_EQ(list.selectedRow(), 1);
    EXPECT_EQ(list.openID(), u"nopinhole_2");
    list.open(3);
    list.open(-1);
    EXPECT_EQ(model.videoID(), u"nopinhole_2"_s);
}

TEST_F(VideoAdapters, TheListFollowsItsFilter)
{
    VideoList list;
    const QSignalSpy resets(&list, &VideoList::modelReset);
    list.setFilter(u"pinhole"_s);
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.openID(), u"abcdefghijk");
    EXPECT_EQ(list.outcome(), u"2 videos");
    EXPECT_EQ(resets.count(), 1);
    list.setFilter(u"pinhole "_s);
    EXPECT_EQ(resets.count(), 1);
    list.setFilter(u"zeppelin"_s);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.openID(), QString());
    EXPECT_EQ(list.outcome(), u"0 videos");
    list.setFilter(u"  "_s);
    EXPECT_EQ(list.count(), 3);
    EXPECT_EQ(list.outcome(), QString());
}

TEST_F(VideoAdapters, ThePageTellsOfItsFilmAndItsModule)
{
    VideoReading reading;
    reading.setVideoID(u"abcdefghijk"_s);
    EXPECT_EQ(reading.title(), u"Pinhole");
    EXPECT_EQ(reading.line(), u"The Bench · 1:00 · published 2021-03-04 · link checked 2026-10-24");
    EXPECT_EQ(reading.moduleTitle(), u"Light and the camera");

    model.setLessonID(u"l1"_s);
    model.setQuizModuleID(u"time"_s);
    reading.goToModule();
    EXPECT_EQ(model.screen(), Screen::Course);
    EXPECT_EQ(model.moduleID(), u"light"_s);
    EXPECT_EQ(model.lessonID(), std::nullopt);
    EXPECT_EQ(model.quizModuleID(), std::nullopt);

    reading.setVideoID(u"nobodysfilm"_s);
    EXPECT_EQ(reading.moduleTitle(), QString());
}

TEST_F(VideoAdapters, WithoutANetworkThePageSaysWhyTheBrowserStaysClosed)
{
    VideoReading reading;
    reading.setVideoID(u"abcdefghijk"_s);
    NetStatus::setOverride(false);
    reading.openInYouTube();
    EXPECT_EQ(model.message(), HVVideo::offlineMessage);
}
