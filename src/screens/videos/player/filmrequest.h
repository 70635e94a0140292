#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickWebEngineProfile>
#include <QUrl>
#include <QVariantMap>
#include <QWebEngineUrlRequestInterceptor>
#include <QtQml/qqml.h>

/// Says on whose behalf a film's page is asked for. A view of QML can't send headers by itself.
class FilmRequest : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT
    QML_ELEMENT
    /// The profile whose requests go through here.
    Q_PROPERTY(QQuickWebEngineProfile *profile READ profile WRITE setProfile NOTIFY profileChanged)
    /// The page of the film. Only it is asked for with these headers: where a page goes by itself
    /// it answers for.
    Q_PROPERTY(QUrl address MEMBER m_address NOTIFY requestChanged)
    /// Texts by the names of the headers.
    Q_PROPERTY(QVariantMap headers MEMBER m_headers NOTIFY requestChanged)
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
    ~FilmRequest() override;

    [[nodiscard]] QQuickWebEngineProfile *profile() const { return m_profile; }
    void setProfile(QQuickWebEngineProfile *profile);

    void interceptRequest(QWebEngineUrlRequestInfo &info) override;

Q_SIGNALS:
    void profileChanged();
    void requestChanged();

private:
    QPointer<QQuickWebEngineProfile> m_profile;
    QUrl m_address;
    QVariantMap m_headers;
};
