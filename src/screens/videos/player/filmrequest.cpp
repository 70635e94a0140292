#include "screens/videos/player/filmrequest.h"

FilmRequest::~FilmRequest()
{
    setProfile(nullptr);
}

void FilmRequest::setProfile(QQuickWebEngineProfile *profile)
{
    if (m_profile == profile)
        return;
    if (m_profile)
        m_profile->setUrlRequestInterceptor(nullptr);
    m_profile = profile;
    if (m_profile)
        m_profile->setUrlRequestInterceptor(this);
    Q_EMIT profileChanged();
}

void FilmRequest::interceptRequest(QWebEngineUrlRequestInfo &info)
{
    const bool isPage = info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame;
    if (!isPage || info.requestUrl() != m_address)
        return;
    for (auto [name, value] : m_headers.asKeyValueRange())
        info.setHttpHeader(name.toUtf8(), value.toByteArray());
}
