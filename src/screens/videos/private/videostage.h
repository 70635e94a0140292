#pragma once

#include "screens/videos/hvvideo.h"

#include <QObject>
#include <QTimer>
#include <QtQml/qqml.h>

#include <functional>

/// What the stage of the library's page shows for its film: the player or, in its place, a reason
/// why there is none. Follows the network and AppModel's selection.
///
/// A film that has failed stays so until another one is shown or chosen; nothing tries again by
/// itself.
class VideoStage : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The film of the page; empty if it is about none.
    Q_PROPERTY(QString videoID READ videoID WRITE setVideoID NOTIFY changed)
    Q_PROPERTY(Content content READ content NOTIFY changed)
    /// The films that have a player: one or none. Each has one of its own.
    Q_PROPERTY(QStringList playing READ playing NOTIFY changed)
    /// What the player is to load, and how.
    Q_PROPERTY(QUrl address READ address NOTIFY changed)
    Q_PROPERTY(QVariantMap headers READ headers NOTIFY changed)
    Q_PROPERTY(int timeout READ timeout NOTIFY changed)
    Q_PROPERTY(QString probeScript READ probeScript CONSTANT)
    Q_PROPERTY(QString offlineMessage READ offlineMessage CONSTANT)
public:
    enum Content {
        Nothing, ///< There is no film.
        Offline, ///< The machine has no network.
        Failure, ///< The film can't be shown here.
        Picture, ///< Stands for the player while pictures are taken.
        Player,
    };
    Q_ENUM(Content)

    /// How a film's player is asked for.
    using Requests = std::function<HVVideo::EmbedRequest(const Video &video)>;

    explicit VideoStage(QObject *parent = nullptr);

    [[nodiscard]] QString videoID() const { return m_videoID; }
    void setVideoID(const QString &id);
    [[nodiscard]] Content content() const;
    [[nodiscard]] QStringList playing() const;
    [[nodiscard]] QUrl address() const { return request().url; }
    [[nodiscard]] QVariantMap headers() const;
    [[nodiscard]] int timeout() const { return int(request().timeout.count()); }
    [[nodiscard]] QString probeScript() const { return HVVideo::errorProbeJS; }
    [[nodiscard]] QString offlineMessage() const { return HVVideo::offlineMessage; }

    /// The file that holds the player. It needs a module that may not be installed, and that is
    /// found from here on if it is.
    Q_INVOKABLE [[nodiscard]] QUrl playerFile() const;

    /// The player can't show the film.
    Q_INVOKABLE void fail();

    /// Hands an address to the user's browser.
    Q_INVOKABLE void leave(const QUrl &address) const;

    /// Has players ask for another page than the service's. Empty puts HVVideo::embedRequest back.
    static void setRequests(Requests requests);

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] HVVideo::EmbedRequest request() const;
    void followChoice();
    void playNow();

    QString m_videoID;
    QString m_playedID; ///< Lags behind while somebody types.
    bool m_failed = false;
    QTimer m_typing;
};
