// Which films can be played and which addresses leave the program.
//
// Each line of the input is a field of a film: id, title, channel, published, checked, seconds. All
// of it is also an address that a page or a record might lead to.

#include "screens/videos/hvvideo.h"

#include "kit/opener.h"
#include "screens/videos/player/playersession.h"
#include "support/fuzz.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Fuzz::expect;

namespace {

bool isIdCharacter(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z')
        || (character >= u'0' && character <= u'9') || character == u'_' || character == u'-';
}

bool isId(const QString &text)
{
    return text.size() == 11 && std::ranges::all_of(text, isIdCharacter);
}

bool isDay(const QString &text)
{
    if (text.size() != 10)
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool fits = i == 4 || i == 7 ? text[i] == u'-' : text[i] >= u'0' && text[i] <= u'9';
        if (!fits)
            return false;
    }
    return true;
}

void tryFilm(const Video &video)
{
    const bool isSound = isId(video.id) && isDay(video.published) && isDay(video.checked)
        && video.seconds >= 1 && !video.title.isEmpty() && !video.channel.isEmpty();
    expect(HVVideo::isWellFormed(video) == isSound, "a film is well formed by its rules alone");

    const QUrl watch = HVVideo::watchURL(video);
    const QUrl embed = HVVideo::embedURL(video);
    const HVVideo::EmbedRequest request = HVVideo::embedRequest(video);
    expect(request.url == embed, "the player's own page is asked for");
    expect(HVVideo::makerSite().scheme() == "https"_L1, "the referrer is secure");
    if (isSound) {
        expect(watch.toEncoded() == "https://www.youtube.com/watch?v=" + video.id.toLatin1(),
            "a sound film leads to its page");
        expect(embed.toEncoded()
                == "https://www.youtube-nocookie.com/embed/" + video.id.toLatin1()
                    + "?rel=0&modestbranding=1&playsinline=1",
            "a sound film leads to its player");
    }
    // Whatever the id says, no address of another host comes of it.
    for (const auto &[url, host] :
        { std::pair(watch, HVVideo::watchHost), std::pair(embed, HVVideo::embedHost) })
        expect(!url.isValid() || (url.scheme() == "https"_L1 && url.host() == host),
            "an id stays behind the service's host");
}

// What the program would hand to the browser.
QList<QUrl> handedOut(const std::function<void()> &action)
{
    QList<QUrl> addresses;
    Opener::setAction([&addresses](const QUrl &address) { addresses.append(address); });
    action();
    Opener::setAction({});
    return addresses;
}

void tryAddress(const QString &text)
{
    const QString destination = Opener::destination(text);
    const QList<QUrl> opened = handedOut([&] { Opener::open(text); });
    expect(opened.size() == (destination.isEmpty() ? 0 : 1), "what has a destination is opened");
    for (const QUrl &address : opened) {
        expect(address.scheme() == "https"_L1 || address.scheme() == "http"_L1,
            "only addresses of the web leave");
        expect(!address.host().isEmpty() && address.host() == destination,
            "what is opened goes where was said");
    }

    PlayerSession session;
    QList<QUrl> leaving;
    QObject::connect(&session, &PlayerSession::leaving,
        [&leaving](const QUrl &address) { leaving.append(address); });
    const QUrl address(text);
    expect(session.allowsNavigation(address, false, true)
            && session.allowsNavigation(address, false, false)
            && session.allowsNavigation(address, true, false),
        "frames and loads of the page go on");
    expect(leaving.isEmpty(), "what goes on doesn't leave");
    expect(session.allowsNavigation(address, true, true) == leaving.isEmpty(),
        "a link leaves or is followed");
    session.windowRequested(address);
    const QList<QUrl> handed = handedOut([&] {
        for (const QUrl &left : leaving)
            Opener::open(left);
    });
    for (const QUrl &left : handed)
        expect(left.scheme().startsWith("http"_L1) && !left.host().isEmpty(),
            "a page can't have anything but the web opened");
}

} // namespace

void Fuzz::tryOut(QByteArrayView bytes)
{
    const QString text = QString::fromUtf8(bytes);
    const QStringList lines = text.split(u'\n');
    tryFilm({ .id = lines.value(0),
        .title = lines.value(1),
        .channel = lines.value(2),
        .seconds = lines.value(5).toLongLong(),
        .published = lines.value(3),
        .checked = lines.value(4) });
    // With all else in order the id alone decides.
    tryFilm({ .id = lines.value(0),
        .title = u"What light does"_s,
        .channel = u"Bright Room"_s,
        .seconds = 1,
        .published = u"2020-01-02"_s,
        .checked = u"2026-10-24"_s });
    tryAddress(text);
}
