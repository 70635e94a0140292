#pragma once

#include <QObject>
#include <QtQml/qqml.h>

/// A film as the library's page tells of it, with the user's bookmark on it.
class VideoReading : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString videoID READ videoID WRITE setVideoID NOTIFY videoChanged)
    Q_PROPERTY(QString title READ title NOTIFY videoChanged)
    /// Channel, length and days.
    Q_PROPERTY(QString line READ line NOTIFY videoChanged)
    /// The title of the module that the film belongs to; empty if it belongs to none.
    Q_PROPERTY(QString moduleTitle READ moduleTitle NOTIFY videoChanged)
    Q_PROPERTY(bool bookmarked READ isBookmarked NOTIFY marksChanged)
public:
    explicit VideoReading(QObject *parent = nullptr);

    [[nodiscard]] QString videoID() const { return m_videoID; }
    void setVideoID(const QString &id);
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString line() const;
    [[nodiscard]] QString moduleTitle() const;
    [[nodiscard]] bool isBookmarked() const;

    /// Opens the film's page in the browser; without a network it says why not.
    Q_INVOKABLE void openInYouTube();
    Q_INVOKABLE void toggleBookmark();
    Q_INVOKABLE void addNote();
    Q_INVOKABLE void goToModule();

Q_SIGNALS:
    void videoChanged();
    void marksChanged();

private:
    /// The film, or an empty one for an id that names none.
    [[nodiscard]] const struct Video &video() const;

    QString m_videoID;
};
