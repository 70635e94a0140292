// The history's decisions: in which order the events stand, and which one is open.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

struct TimelineEvent;

namespace Timeline {

/// The eras of these events, each once: those that the history knows in their order, then others in
/// the order in which they first appear.
[[nodiscard]] QStringList eras(const QList<TimelineEvent> &events);

/// The events era by era, and within an era as they come. The pointers are into the list.
[[nodiscard]] QList<const TimelineEvent *> byEra(const QList<TimelineEvent> &events);

/// The event that the page shows: the chosen one or, if that names none, the first. Nothing without
/// events.
[[nodiscard]] const TimelineEvent *open(
    const std::optional<QString> &eventID, const QList<TimelineEvent> &events);

} // namespace Timeline
