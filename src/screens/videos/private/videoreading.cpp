#include "screens/videos/private/videoreading.h"

#include "screens/common/storefollower.h"
#include "screens/videos/hvvideo.h"
#include "screens/videos/openinyoutube.h"
#include "screens/videos/videoshelf.h"

#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "shell/appmodel.h"

VideoReading::VideoReading(QObject *parent)
    : QObject(parent)
{
    followStore(this, &VideoReading::marksChanged);
}

const Video &VideoReading::video() const
{
    static const Video none;
    const Video *found = ContentLibrary::shared().video(m_videoID);
    return found ? *found : none;
}

void VideoReading::setVideoID(const QString &id)
{
    if (m_videoID == id)
        return;
    m_videoID = id;
    Q_EMIT videoChanged();
    Q_EMIT marksChanged();
}

QString VideoReading::title() const
{
    return video().title;
}

QString VideoReading::line() const
{
    return VideoShelf::pageLine(video());
}

QString VideoReading::moduleTitle() const
{
    const Module *module = ContentLibrary::shared().module(video().moduleID);
    return module ? module->title : QString();
}

bool VideoReading::isBookmarked() const
{
    return hasBookmark(ContentKind::video, m_videoID);
}

void VideoReading::openInYouTube()
{
    if (!HVVideo::openInYouTube(video()))
        AppModel::shared().setMessage(HVVideo::offlineMessage);
}

void VideoReading::toggleBookmark()
{
    AppModel::shared().toggleBookmark(ContentKind::video, m_videoID);
}

void VideoReading::addNote()
{
    AppModel::shared().newNote(ContentKind::video, m_videoID);
}

void VideoReading::goToModule()
{
    AppModel::shared().openModule(video().moduleID);
}
