#include "screens/videos/private/videostage.h"

#include "content/contentlibrary.h"
#include "kit/netstatus.h"
#include "kit/opener.h"
#include "kit/snapshotmode.h"
#include "screens/videos/private/enginesandbox.h"
#include "shell/appmodel.h"
#include "shell/info.h"

#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace {

// While nothing is chosen the page follows the filter. A film for every letter would keep the
// network busy with what nobody means to watch.
constexpr int kPauseInTyping = 400; // ms

VideoStage::Requests &storedRequests()
{
    static VideoStage::Requests requests;
    return requests;
}

} // namespace

VideoStage::VideoStage(QObject *parent)
    : QObject(parent)
{
    m_typing.setSingleShot(true);
    m_typing.setInterval(kPauseInTyping);
    connect(&m_typing, &QTimer::timeout, this, &VideoStage::playNow);
    connect(&NetStatus::shared(), &NetStatus::onlineChanged, this, &VideoStage::changed);
    connect(&AppModel::shared(), &AppModel::videoIDChanged, this, &VideoStage::followChoice);
    NetStatus::shared().start();
}

void VideoStage::setVideoID(const QString &id)
{
    if (m_videoID == id)
        return;
    const bool wasEmpty = m_videoID.isEmpty();
    m_videoID = id;
    m_failed = false;
    if (wasEmpty || id.isEmpty() || AppModel::shared().videoID() == id) {
        playNow();
    } else {
        m_playedID.clear();
        m_typing.start();
        Q_EMIT changed();
    }
}

void VideoStage::followChoice()
{
    m_failed = false;
    const AppModel::OptionalText &chosen = AppModel::shared().videoID();
    // The page is on its way to another film: the one that it leaves doesn't get a player again.
    if (chosen && chosen != m_videoID && ContentLibrary::shared().video(*chosen))
        return;
    playNow();
}

void VideoStage::playNow()
{
    m_typing.stop();
    m_playedID = m_videoID;
    Q_EMIT changed();
}

VideoStage::Content VideoStage::content() const
{
    if (m_videoID.isEmpty())
        return Nothing;
    if (!NetStatus::shared().isOnline())
        return Offline;
    if (m_failed)
        return Failure;
    if (SnapshotMode::isEnabled())
        return Picture;
    return EngineSandbox::isUsable() ? Player : Failure;
}

QStringList VideoStage::playing() const
{
    return content() == Player && !m_playedID.isEmpty() ? QStringList(m_playedID) : QStringList();
}

HVVideo::EmbedRequest VideoStage::request() const
{
    const Video *video = ContentLibrary::shared().video(m_playedID);
    if (!video)
        return {};
    return storedRequests() ? storedRequests()(*video) : HVVideo::embedRequest(*video);
}

QVariantMap VideoStage::headers() const
{
    QVariantMap headers;
    for (const auto &[name, value] : request().headers)
        headers.insert(QString::fromUtf8(name), QString::fromUtf8(value));
    return headers;
}

QUrl VideoStage::playerFile() const
{
    QQmlEngine *engine = qmlEngine(this);
    if (!engine->importPathList().contains(HVInfo::pluginFolder()))
        engine->addImportPath(HVInfo::pluginFolder());
    return QUrl(u"qrc:/qt/qml/Halvorin/Screens/LoadedPlayer.qml"_s);
}

void VideoStage::fail()
{
    if (m_failed)
        return;
    m_failed = true;
    Q_EMIT changed();
}

void VideoStage::leave(const QUrl &address) const
{
    Opener::open(address);
}

void VideoStage::setRequests(Requests requests)
{
    storedRequests() = std::move(requests);
}
