#include "shell/screen.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const QList<ScreenInfo> &allScreens()
{
    static const QList<ScreenInfo> screens = {
        { Screen::Home, u"home"_s, u"Campus"_s, u"HOME"_s, u"building.columns"_s },
        { Screen::Course, u"course"_s, u"Course"_s, u"LEARN"_s, u"graduationcap"_s },
        { Screen::Exposure, u"exposure"_s, u"Exposure Lab"_s, u"EXPO"_s, u"camera.aperture"_s },
        { Screen::Lens, u"lens"_s, u"Lens Lab"_s, u"LENS"_s, u"circle.circle"_s },
        { Screen::History, u"history"_s, u"History"_s, u"HIST"_s, u"clock.arrow.circlepath"_s },
        { Screen::Gear, u"gear"_s, u"Gear Encyclopedia"_s, u"GEAR"_s, u"books.vertical"_s },
        { Screen::Workflow, u"workflow"_s, u"Workflows & Software"_s, u"FLOW"_s,
            u"arrow.triangle.branch"_s },
        { Screen::Videos, u"videos"_s, u"Video Library"_s, u"VIDEO"_s, u"play.rectangle"_s },
        { Screen::Notes, u"notes"_s, u"My Notes & Progress"_s, u"NOTES"_s, u"note.text"_s },
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
    return allScreens().at((int(screen) + delta + count) % count).screen;
}
