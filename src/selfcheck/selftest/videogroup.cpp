#include "content/contentlibrary.h"
#include "kit/netstatus.h"
#include "screens/videos/hvvideo.h"
#include "screens/videos/openinyoutube.h"
#include "selfcheck/selftest/groups.h"

#include <QSet>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kModules = 10;

template <typename Field>
qsizetype distinct(const QList<Video> &videos, Field field)
{
    QSet<QString> values;
    for (const Video &video : videos)
        values.insert(std::invoke(field, video));
    return values.size();
}

bool saysWhereItIsEmbedded(const HVVideo::EmbedRequest &request, const Video &video)
{
    const QString player = "https://"_L1 + HVVideo::embedHost + "/embed/"_L1 + video.id;
    const auto referer
        = std::ranges::find(request.headers, "Referer", &std::pair<QByteArray, QByteArray>::first);
    return request.url.toString().startsWith(player) && referer != request.headers.end()
        && referer->second.startsWith("https://");
}

} // namespace

void HVSelfTest::videoTests(
    HVTestRun &run, const std::function<QList<QUrl>()> &opened, const std::function<void()> &clear)
{
    const QList<Video> &videos = ContentLibrary::shared().videos();

    run.begin(u"Video library: every link well formed; embedded player; offline message; Open in "
              "YouTube"_s);

    run.check(std::ranges::all_of(videos, HVVideo::isWellFormed),
        u"all %1 video links are well formed"_s.arg(videos.size()));
    run.check(!HVVideo::isWellFormed({ .id = u"abc"_s }), u"a malformed video id is caught"_s);
    run.check(distinct(videos, &Video::id) == videos.size(), u"no duplicate videos"_s);
    const qsizetype modules = distinct(videos, &Video::moduleID);
    run.check(modules >= kModules, u"videos cover %1 modules"_s.arg(modules));

    const std::optional<Video> first
        = videos.isEmpty() ? std::nullopt : std::optional(videos.first());
    run.check(first && saysWhereItIsEmbedded(HVVideo::embedRequest(*first), *first),
        u"the player uses the official YouTube embed page with an https referrer"_s);

    NetStatus::setOverride(false);
    clear();
    const bool stays = first && !HVVideo::openInYouTube(*first) && opened().isEmpty();
    run.check(stays, u"offline: nothing opens and the \"needs internet\" message shows"_s);
    run.check(HVVideo::offlineMessage.toLower().contains("needs internet"_L1),
        u"the offline message says it needs internet"_s);

    NetStatus::setOverride(true);
    clear();
    const bool leaves
        = first && HVVideo::openInYouTube(*first) && opened() == QList{ HVVideo::watchURL(*first) };
    run.check(leaves, u"online: Open in YouTube opens the watch page"_s);
}
