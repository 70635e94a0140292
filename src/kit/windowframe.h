// Where a window stood last time, and whether there is still such a place.
#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <optional>

/// The frame of a window as a preference keeps it: "120 80 1440 948", and " maximized" behind it
/// where the window filled its screen; then the numbers tell what it goes back to.
struct WindowFrame {
    QRect area; ///< Without the desktop's border, in logical pixels of the whole desktop.
    bool maximized = false;

    [[nodiscard]] QString text() const;
    /// Nothing if the text isn't one of ours or the area is empty.
    [[nodiscard]] static std::optional<WindowFrame> fromText(const QString &text);

    friend bool operator==(const WindowFrame &, const WindowFrame &) = default;
};

/// What of a stored frame can be had today.
struct WindowPlace {
    QSize size;
    std::optional<QPoint> position; ///< Nothing leaves it to the desktop.

    friend bool operator==(const WindowPlace &, const WindowPlace &) = default;
};

/// Fits a stored area to the screens that there are; `screens` are their areas without panels.
/// The position is kept only where enough of the upper edge lies on a screen to take the window
/// by. The size is at most that of the screen, but never below `minimum`.
[[nodiscard]] WindowPlace placeOn(const QList<QRect> &screens, const QRect &area, QSize minimum);

/// The largest window that is seen as a whole on a screen, under its title bar.
[[nodiscard]] QSize roomOn(const QRect &screen);
