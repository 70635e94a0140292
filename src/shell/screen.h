// The main screens, in the order in which dial, rail and menu go through them. Whatever depends on
// which screens there are reads this table.
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringView>

#include <optional>

// The enumeration lives in a namespace of its own so that QML can name its cases (HVScreen.Gear).
namespace HVScreen {
Q_NAMESPACE
enum class Screen { Home, Course, Exposure, Lens, History, Gear, Workflow, Videos, Notes };
Q_ENUM_NS(Screen)
} // namespace HVScreen
using HVScreen::Screen;

/// How a screen is called in its different places, and what shows it.
struct ScreenInfo {
    Screen screen;
    QString rawValue; ///< Its id.
    QString title;
    QString shortTitle; ///< Engraved on the dial.
    QString symbol;
    QString component; ///< The QML type that the display shows, with its module.
};

/// All screens in their order; never empty.
[[nodiscard]] const QList<ScreenInfo> &allScreens();

[[nodiscard]] const ScreenInfo &screenInfo(Screen screen);

/// The screen with exactly this raw value.
[[nodiscard]] std::optional<Screen> screenNamed(QStringView rawValue);

/// The screen `delta` places further along the dial, which turns round at both ends.
[[nodiscard]] Screen screenAfter(Screen screen, int delta);
