// What the embedded player decides, without the web view that does it.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <QVariant>

#include <chrono>

/// The course of a film in a web view: what is loaded, whether that has failed, and what the page
/// may do. The web view tells what happens to it, and does what the signals ask for.
///
/// A film fails if its page can't be loaded, if nothing is heard of it for too long, if the page's
/// process dies, or if the page says so itself. That last is nothing the network knows of: the
/// service answers with a page whose player shows a box with an excuse, so a while after the page
/// has been loaded the view is asked to look for that box.
class PlayerSession : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool failed READ hasFailed NOTIFY failedChanged)
    /// Milliseconds from the end of loading to the look for the box.
    Q_PROPERTY(int probeDelay READ probeDelay WRITE setProbeDelay NOTIFY probeDelayChanged)
    /// Milliseconds without a sign of the page after which loading has failed.
    Q_PROPERTY(int timeout READ timeout WRITE setTimeout NOTIFY timeoutChanged)
public:
    explicit PlayerSession(QObject *parent = nullptr);

    [[nodiscard]] bool hasFailed() const { return m_failed; }
    [[nodiscard]] int probeDelay() const { return int(m_probeDelay.count()); }
    void setProbeDelay(int milliseconds);
    [[nodiscard]] int timeout() const { return m_silence.interval(); }
    void setTimeout(int milliseconds);

    /// The film that was loaded last; empty at first.
    [[nodiscard]] const QString &loadedID() const { return m_loadedID; }

    /// Loads this film's page, unless it is the one that is loaded.
    Q_INVOKABLE void show(const QString &videoID, const QUrl &address);

    // What happens to the web view.
    /// More of the page has come.
    Q_INVOKABLE void progressed();
    Q_INVOKABLE void loadingFinished();
    Q_INVOKABLE void loadingFailed();
    Q_INVOKABLE void processEnded();
    /// What the script that probeRequested() asked for has found, for the film of that signal.
    Q_INVOKABLE void probed(const QString &videoID, const QVariant &result);

    /// Whether the page may go to an address in one of its own frames. A link that would replace
    /// the whole page may not: it leads out, to the user's browser.
    Q_INVOKABLE [[nodiscard]] bool allowsNavigation(
        const QUrl &address, bool isLink, bool isMainFrame);
    /// The page wants a window. It gets none: the address leads out.
    Q_INVOKABLE void windowRequested(const QUrl &address);

Q_SIGNALS:
    void failedChanged();
    void probeDelayChanged();
    void timeoutChanged();
    void loadRequested(const QUrl &address);
    void probeRequested(const QString &videoID);
    /// An address is for the user's browser.
    void leaving(const QUrl &address);

private:
    void setFailed(bool failed);

    QString m_loadedID;
    bool m_failed = false;
    std::chrono::milliseconds m_probeDelay{ 3000 };
    QTimer m_silence;
};
