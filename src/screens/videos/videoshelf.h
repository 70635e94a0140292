// The video library's decisions: which films its list shows, in which groups, which one its page is
// about, and what stands there.
#pragma once

#include <QList>
#include <QString>

#include <optional>

class ContentLibrary;
struct Module;
struct Video;

namespace VideoShelf {

/// The films that are looked for. A filter that holds more than spaces and tabs is searched for,
/// and its hits stand best first, at most 200; else all films stand in the course's order. The
/// pointers are into the library.
[[nodiscard]] QList<const Video *> shown(const QString &filter, const ContentLibrary &library);

/// A film in the list, and the module under whose title it stands.
struct Row {
    const Module *module;
    const Video *video;

    friend bool operator==(const Row &, const Row &) = default;
};

/// These films module by module, in the course's order of modules; within a module they stay as
/// they come. Films of no module of the course are left out.
[[nodiscard]] QList<Row> byModule(
    const QList<const Video *> &videos, const ContentLibrary &library);

/// The film of the page: the chosen one, whether it is shown or not, else the first that is shown.
/// Nothing if there is neither.
[[nodiscard]] const Video *selected(const std::optional<QString> &videoID,
    const QList<const Video *> &shown, const ContentLibrary &library);

/// What a filter has found: "1 video", "0 videos".
[[nodiscard]] QString found(qsizetype count);

/// "The Bench · 12:05".
[[nodiscard]] QString byline(const Video &video);

/// The byline with the days on which the film was published and its link was last checked.
[[nodiscard]] QString pageLine(const Video &video);

} // namespace VideoShelf
