#include "screens/videos/player/playersession.h"

PlayerSession::PlayerSession(QObject *parent)
    : QObject(parent)
{
    m_silence.setSingleShot(true);
    m_silence.setInterval(std::chrono::seconds(60));
    connect(&m_silence, &QTimer::timeout, this, &PlayerSession::loadingFailed);
}

void PlayerSession::setProbeDelay(int milliseconds)
{
    if (probeDelay() == milliseconds)
        return;
    m_probeDelay = std::chrono::milliseconds(milliseconds);
    Q_EMIT probeDelayChanged();
}

void PlayerSession::setTimeout(int milliseconds)
{
    if (timeout() == milliseconds)
        return;
    m_silence.setInterval(milliseconds);
    Q_EMIT timeoutChanged();
}

void PlayerSession::show(const QString &videoID, const QUrl &address)
{
    if (videoID == m_loadedID)
        return;
    m_loadedID = videoID;
    setFailed(false);
    m_silence.start();
    Q_EMIT loadRequested(address);
}

void PlayerSession::setFailed(bool failed)
{
    if (m_failed == failed)
        return;
    m_failed = failed;
    Q_EMIT failedChanged();
}

void PlayerSession::progressed()
{
    if (m_silence.isActive())
        m_silence.start();
}

void PlayerSession::loadingFinished()
{
    m_silence.stop();
    QTimer::singleShot(m_probeDelay, this, [this, id = m_loadedID] {
        // Another film has been chosen meanwhile.
        if (id == m_loadedID)
            Q_EMIT probeRequested(id);
    });
}

void PlayerSession::loadingFailed()
{
    m_silence.stop();
    setFailed(true);
}

void PlayerSession::processEnded()
{
    m_silence.stop();
    setFailed(true);
}

void PlayerSession::probed(const QString &videoID, const QVariant &result)
{
    const bool isText = result.metaType() == QMetaType::fromType<QString>();
    if (videoID == m_loadedID && isText && !result.toString().trimmed().isEmpty())
        setFailed(true);
}

bool PlayerSession::allowsNavigation(const QUrl &address, bool isLink, bool isMainFrame)
{
    if (!isLink || !isMainFrame || address.isEmpty())
        return true;
    Q_EMIT leaving(address);
    return false;
}

void PlayerSession::windowRequested(const QUrl &address)
{
    if (!address.isEmpty())
        Q_EMIT leaving(address);
}
