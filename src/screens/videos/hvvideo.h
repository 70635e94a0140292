// What makes a record of a film one that the outside service can play: ids and links.
//
// Leaf target hv_video_rules: pure functions without a screen, safe on any thread.
#pragma once

#include "content/records.h"

#include <QByteArray>
#include <QList>
#include <QRegularExpression>
#include <QString>
#include <QUrl>

#include <chrono>
#include <utility>

namespace HVVideo {

/// The host of the pages on which a film is watched at the service itself.
inline const QString watchHost = QStringLiteral("www.youtube.com");

/// The host that serves embedded players without cookies.
inline const QString embedHost = QStringLiteral("www.youtube-nocookie.com");

/// The maker's web site, with the slash at its end: where the player's page is said to be embedded.
[[nodiscard]] QUrl makerSite();

/// What the screen says instead of playing, and instead of opening a browser.
inline const QString offlineMessage = QStringLiteral(
    "This video needs internet. The library streams from YouTube; nothing is downloaded. Connect "
    "to the internet and try again — lessons, the labs and the encyclopedia all work offline.");

/// Looks into the player's page for the box in which it says that it can't play. Its value is the
/// box's text if it can be seen, and an empty text otherwise.
inline const QString errorProbeJS
    = QStringLiteral("(function(){var e=document.querySelector('.ytp-error');"
                     "return e&&e.offsetParent!==null?e.innerText:'';})()");

/// A page to ask for, and how.
struct EmbedRequest {
    QUrl url;
    QList<std::pair<QByteArray, QByteArray>> headers;
    /// For so long the network may stay silent before the request counts as failed.
    std::chrono::milliseconds timeout = std::chrono::seconds(60);

    friend bool operator==(const EmbedRequest &, const EmbedRequest &) = default;
};

/// "^[A-Za-z0-9_-]{11}$", what every id of the service looks like.
[[nodiscard]] const QRegularExpression &idPattern();

/// The page for a browser. The id is taken as it stands, whether or not it is well formed.
[[nodiscard]] QUrl watchURL(const Video &video);

/// The player for the program's own page.
[[nodiscard]] QUrl embedURL(const Video &video);

/// The request for embedURL(). The service refuses some plays to a page that comes from nowhere, so
/// the maker's site stands as "Referer".
[[nodiscard]] EmbedRequest embedRequest(const Video &video);

/// Whether the record can be shown: an id of the service that leads to the film's own page and
/// player, days of the form 2026-10-24 for `published` and `checked`, at least one second, a title
/// and a channel. The record is taken as it stands; a blank too many makes it malformed. Days are
/// looked at for their form alone.
[[nodiscard]] bool isWellFormed(const Video &video);

} // namespace HVVideo
