#include "screens/videos/videoshelf.h"

#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "content/text.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostHits = 200;

} // namespace

namespace VideoShelf {

QList<const Video *> shown(const QString &filter, const ContentLibrary &library)
{
    QList<const Video *> videos;
    const QString query = Text::trimmedBlanks(filter).toString();
    if (query.isEmpty()) {
        for (const Video &video : library.videos())
            videos.append(&video);
        return videos;
    }
    for (const ContentLibrary::Hit &hit : library.search(query, ContentKind::video, kMostHits)) {
        if (const Video *video = library.video(hit.ref))
            videos.append(video);
    }
    return videos;
}

QList<Row> byModule(const QList<const Video *> &videos, const ContentLibrary &library)
{
    QList<Row> rows;
    for (const Module &module : library.modules()) {
        for (const Video *video : videos) {
            if (video->moduleID == module.id)
                rows.append({ &module, video });
        }
    }
    return rows;
}

const Video *selected(const std::optional<QString> &videoID, const QList<const Video *> &shown,
    const ContentLibrary &library)
{
    if (const Video *chosen = videoID ? library.video(*videoID) : nullptr)
        return chosen;
    return shown.isEmpty() ? nullptr : shown.first();
}

QString found(qsizetype count)
{
    return count == 1 ? u"1 video"_s : u"%1 videos"_s.arg(count);
}

QString byline(const Video &video)
{
    return video.channel + u" · " + video.length();
}

QString pageLine(const Video &video)
{
    return byline(video) + u" · published " + video.published + u" · link checked " + video.checked;
}

} // namespace VideoShelf
