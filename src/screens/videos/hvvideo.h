// What makes a record of a film one that the outside service can play: ids and links.
//
// Leaf target hv_video_rules: pure functions without a screen, safe on any thread.
#pragma once

#include "content/records.h"

#include <QRegularExpression>
#include <QUrl>

namespace HVVideo {

/// The host of the pages on which a film is watched at the service itself.
inline const QString watchHost = QStringLiteral("www.youtube.com");

/// The host that serves embedded players without cookies.
inline const QString embedHost = QStringLiteral("www.youtube-nocookie.com");

/// "^[A-Za-z0-9_-]{11}$", what every id of the service looks like.
[[nodiscard]] const QRegularExpression &idPattern();

/// The page for a browser. The id is taken as it stands, whether or not it is well formed.
[[nodiscard]] QUrl watchURL(const Video &video);

/// The player for the program's own page.
[[nodiscard]] QUrl embedURL(const Video &video);

/// Whether the record can be shown: an id of the service that leads to the film's own page and
/// player, days of the form 2026-10-24 for `published` and `checked`, at least one second, a title
/// and a channel. The record is taken as it stands; a blank too many makes it malformed. Days are
/// looked at for their form alone.
[[nodiscard]] bool isWellFormed(const Video &video);

} // namespace HVVideo
