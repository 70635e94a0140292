#include "screens/videos/hvvideo.h"

#include "shell/info.h"

#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {

// Compiles a pattern that stands in this file, where a wrong one is a mistake of ours.
QRegularExpression compiled(const QString &pattern)
{
    QRegularExpression expression(pattern);
    if (!expression.isValid())
        qFatal("%s: %s", qPrintable(pattern), qPrintable(expression.errorString()));
    return expression;
}

// To "$" alone a line end may follow: what was matched must be the whole.
bool matchesWhole(const QRegularExpression &pattern, const QString &text)
{
    const QRegularExpressionMatch match = pattern.match(text);
    return match.hasMatch() && match.capturedLength() == text.size();
}

bool isDay(const QString &text)
{
    static const QRegularExpression pattern = compiled(u"^\\d{4}-\\d{2}-\\d{2}$"_s);
    return matchesWhole(pattern, text);
}

// A link read back from its text, as whoever follows it reads it.
bool leadsTo(const QUrl &link, const QString &host, const QString &path)
{
    const QUrl url(link.toString(QUrl::FullyEncoded), QUrl::StrictMode);
    return url.scheme() == "https"_L1 && url.host() == host && url.path() == path;
}

} // namespace

namespace HVVideo {

const QRegularExpression &idPattern()
{
    static const QRegularExpression pattern = compiled(u"^[A-Za-z0-9_-]{11}$"_s);
    return pattern;
}

QUrl watchURL(const Video &video)
{
    return QUrl(u"https://" + watchHost + u"/watch?v=" + video.id);
}

QUrl embedURL(const Video &video)
{
    return QUrl(
        u"https://" + embedHost + u"/embed/" + video.id + u"?rel=0&modestbranding=1&playsinline=1");
}

QUrl makerSite()
{
    QUrl site = HVInfo::website();
    site.setPath(u"/"_s);
    return site;
}

EmbedRequest embedRequest(const Video &video)
{
    return { .url = embedURL(video), .headers = { { "Referer", makerSite().toEncoded() } } };
}

bool isWellFormed(const Video &video)
{
    const QUrl watch = watchURL(video);
    return matchesWhole(idPattern(), video.id)                                  //
        && leadsTo(watch, watchHost, u"/watch"_s)                               //
        && QUrlQuery(watch).queryItemValue(u"v"_s) == video.id                  //
        && leadsTo(embedURL(video), embedHost, u"/embed/" + video.id)           //
        && isDay(video.published) && isDay(video.checked) && video.seconds >= 1 //
        && !video.title.isEmpty() && !video.channel.isEmpty();
}

} // namespace HVVideo
