#include "screens/history/timeline.h"

#include "content/records.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kEras{ "Pioneers"_L1, "Film arrives"_L1, "The 35 mm age"_L1, "Automation"_L1,
    "The last film cameras"_L1, "The digital era"_L1 };

// The place of an era in the history; all that it doesn't know share the one behind.
auto placeOf(const QString &era)
{
    return std::find(kEras.begin(), kEras.end(), era) - kEras.begin();
}

} // namespace

namespace Timeline {

QStringList eras(const QList<TimelineEvent> &events)
{
    QStringList eras;
    for (const TimelineEvent &event : events)
        eras.append(event.era);
    eras.removeDuplicates();
    std::stable_sort(eras.begin(), eras.end(),
        [](const QString &a, const QString &b) { return placeOf(a) < placeOf(b); });
    return eras;
}

QList<const TimelineEvent *> byEra(const QList<TimelineEvent> &events)
{
    QList<const TimelineEvent *> sorted;
    sorted.reserve(events.size());
    for (const QString &era : eras(events)) {
        for (const TimelineEvent &event : events) {
            if (event.era == era)
                sorted.append(&event);
        }
    }
    return sorted;
}

const TimelineEvent *open(const std::optional<QString> &eventID, const QList<TimelineEvent> &events)
{
    const auto found = std::find_if(events.begin(), events.end(),
        [&eventID](const TimelineEvent &event) { return eventID == event.id; });
    if (found != events.end())
        return &*found;
    return events.isEmpty() ? nullptr : &events.first();
}

} // namespace Timeline
