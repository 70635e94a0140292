#include "screens/videos/hvvideo.h"

#include "support/qtprinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A record with nothing wrong.
Video soundVideo()
{
    return {
        .id = u"aB3_-xyz019"_s,
        .title = u"What light does"_s,
        .channel = u"Bright Room"_s,
        .seconds = 600,
        .published = u"2020-01-02"_s,
        .checked = u"2026-10-24"_s,
    };
}

bool isWellFormedWithId(const QString &id)
{
    Video video = soundVideo();
    video.id = id;
    return HVVideo::isWellFormed(video);
}

} // namespace

TEST(VideoLinks, LeadToTheFilmsPageAndPlayer)
{
    EXPECT_EQ(
        HVVideo::watchURL(soundVideo()).toString(), u"https://www.youtube.com/watch?v=aB3_-xyz019");
    EXPECT_EQ(HVVideo::embedURL(soundVideo()).toString(),
        u"https://www.youtube-nocookie.com/embed/aB3_-xyz019"
        "?rel=0&modestbranding=1&playsinline=1");
}

TEST(VideoLinks, ThePlayerIsAskedForOnBehalfOfTheMakersSite)
{
    const HVVideo::EmbedRequest request = HVVideo::embedRequest(soundVideo());
    EXPECT_EQ(request.url, HVVideo::embedURL(soundVideo()));
    ASSERT_EQ(request.headers.size(), 1);
    EXPECT_EQ(request.headers.first().first, "Referer");
    EXPECT_EQ(request.headers.first().second, HVVideo::makerSite().toEncoded());
    EXPECT_TRUE(request.headers.first().second.startsWith("https://"));
    EXPECT_TRUE(request.headers.first().second.endsWith('/'));
    EXPECT_EQ(request.timeout, std::chrono::seconds(60));
}

TEST(VideoLinks, TheProbeReadsTheBoxThatCanBeSeen)
{
    EXPECT_EQ(HVVideo::errorProbeJS,
        u"(function(){var e=document.querySelector('.ytp-error');"
        "return e&&e.offsetParent!==null?e.innerText:'';})()");
}

TEST(VideoLinks, TheIdsPatternIsTheServices)
{
    EXPECT_EQ(HVVideo::idPattern().pattern(), u"^[A-Za-z0-9_-]{11}$");
    EXPECT_TRUE(HVVideo::idPattern().isValid());
}

TEST(VideoRules, AcceptARecordThatHasEverything)
{
    EXPECT_TRUE(HVVideo::isWellFormed(soundVideo()));
}

TEST(VideoRules, AcceptIdsOfElevenLettersDigitsUnderscoresAndHyphens)
{
    for (const QString &id : { u"abcdefghijk"_s, u"ABCDEFGHIJK"_s, u"01234567890"_s,
             u"___________"_s, u"-----------"_s, u"-_-_-_-_-_-"_s })
        EXPECT_TRUE(isWellFormedWithId(id)) << id.toStdString();
}

TEST(VideoRules, RefuseEveryOtherId)
{
    for (const QString &id : { QString(), u"abcdefghij"_s, u"abcdefghijkl"_s, u"abcdefghij."_s,
             u"abcdefghij "_s, u" bcdefghijk"_s, u"abcde fghij"_s, u"abcdefghijk\n"_s,
             u"abcdefghij\n"_s, u"abcdefghij/"_s, u"abcdefghij?"_s, u"abcdefghij&"_s,
             u"abcdefghij%"_s, u"abcdefghijé"_s, u"abcdefghij٣"_s })
        EXPECT_FALSE(isWellFormedWithId(id)) << id.toStdString();
}

TEST(VideoRules, LookAtTheFormOfDaysAlone)
{
    const auto accepts = [](const QString &day) {
        Video published = soundVideo();
        published.published = day;
        Video checked = soundVideo();
        checked.checked = day;
        EXPECT_EQ(HVVideo::isWellFormed(published), HVVideo::isWellFormed(checked));
        return HVVideo::isWellFormed(published);
    };
    EXPECT_TRUE(accepts(u"2026-13-45"_s));
    EXPECT_TRUE(accepts(u"0000-00-00"_s));
    for (const QString &day :
        { QString(), u"2026-1-1"_s, u"2026-10-24 "_s, u" 2026-10-24"_s, u"2026-10-24\n"_s,
            u"2026/10/24"_s, u"26-10-2024"_s, u"2026-10-244"_s, u"xxxxxxxxxx"_s, u"٢٠٢٦-١٠-٢٤"_s })
        EXPECT_FALSE(accepts(day)) << day.toStdString();
}

TEST(VideoRules, NeedASecondATitleAndAChannel)
{
    Video shortest = soundVideo();
    shortest.seconds = 1;
    EXPECT_TRUE(HVVideo::isWellFormed(shortest));

    for (const qint64 seconds : { 0, -1 }) {
        Video video = soundVideo();
        video.seconds = seconds;
        EXPECT_FALSE(HVVideo::isWellFormed(video));
    }
    Video untitled = soundVideo();
    untitled.title.clear();
    EXPECT_FALSE(HVVideo::isWellFormed(untitled));
    Video ofNobody = soundVideo();
    ofNobody.channel.clear();
    EXPECT_FALSE(HVVideo::isWellFormed(ofNobody));
}

TEST(VideoRules, LeaveModuleAndTopicAlone)
{
    Video video = soundVideo();
    video.moduleID = u"no such module"_s;
    EXPECT_TRUE(video.topic.isEmpty());
    EXPECT_TRUE(HVVideo::isWellFormed(video));
}
