#include "shell/screen.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const QList<ScreenInfo> &allScreens()
{
    static const QList<ScreenInfo> screens = {
        { .screen = Screen::Home,
            .rawValue = u"home"_s,
            .title = u"Campus"_s,
            .shortTitle = u"HOME"_s,
            .symbol = u"building.columns"_s,
            .component = u"Halvorin.Screens.HomeView"_s },
        { .screen = Screen::Course,
            .rawValue = u"course"_s,
            .title = u"Course"_s,
            .shortTitle = u"LEARN"_s,
            .symbol = u"graduationcap"_s,
            .component = u"Halvorin.Screens.CourseView"_s },
        { .screen = Screen::Exposure,
            .rawValue = u"exposure"_s,
            .title = u"Exposure Lab"_s,
            .shortTitle = u"EXPO"_s,
            .symbol = u"camera.aperture"_s,
            .component = u"Halvorin.Simulator.ExposureLabView"_s },
        { .screen = Screen::Lens,
            .rawValue = u"lens"_s,
            .title = u"Lens Lab"_s,
            .shortTitle = u"LENS"_s,
            .symbol = u"circle.circle"_s,
            .component = u"Halvorin.Simulator.LensLabView"_s },
        { .screen = Screen::History,
            .rawValue = u"history"_s,
            .title = u"History"_s,
            .shortTitle = u"HIST"_s,
            .symbol = u"clock.arrow.circlepath"_s,
            .component = u"Halvorin.Screens.HistoryView"_s },
        { .screen = Screen::Gear,
            .rawValue = u"gear"_s,
            .title = u"Gear Encyclopedia"_s,
            .shortTitle = u"GEAR"_s,
            .symbol = u"books.vertical"_s,
            .component = u"Halvorin.Screens.GearView"_s },
        { .screen = Screen::Workflow,
            .rawValue = u"workflow"_s,
            .title = u"Workflows & Software"_s,
            .shortTitle = u"FLOW"_s,
            .symbol = u"arrow.triangle.branch"_s,
            .component = u"Halvorin.Screens.WorkflowView"_s },
        { .screen = Screen::Videos,
            .rawValue = u"videos"_s,
            .title = u"Video Library"_s,
            .shortTitle = u"VIDEO"_s,
            .symbol = u"play.rectangle"_s,
            .component = u"Halvorin.Screens.VideoLibraryView"_s },
        { .screen = Screen::Notes,
            .rawValue = u"notes"_s,
            .title = u"My Notes & Progress"_s,
            .shortTitle = u"NOTES"_s,
            .symbol = u"note.text"_s,
            .component = u"Halvorin.Screens.NotesView"_s },
    };
    return screens;
}

const ScreenInfo &screenInfo(Screen screen)
{
    const ScreenInfo &info = allScreens().at(int(screen));
    Q_ASSERT(info.screen == screen);
    return info;
}

std::optional<Screen> screenNamed(QStringView rawValue)
{
    const auto found = std::ranges::find(allScreens(), rawValue, &ScreenInfo::rawValue);
    return found != allScreens().end() ? std::optional(found->screen) : std::nullopt;
}

Screen screenAfter(Screen screen, int delta)
{
    const int count = int(allScreens().size());
    const int place = (int(screen) + delta) % count;
    return allScreens().at(place < 0 ? place + count : place).screen;
}
