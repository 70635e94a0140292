#include "content/contentlibrary.h"
#include "screens/videos/hvvideo.h"
#include "selfcheck/selftest/groups.h"

#include <QSet>

#include <algorithm>

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

} // namespace

void HVSelfTest::videoTests(HVTestRun &run, const std::function<QList<QUrl>()> &opened,
    const std::function<void()> &clear)
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
}
