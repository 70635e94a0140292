#include "kit/windowframe.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// What a hand needs of the title bar. It lies above the area, which the desktop counts without it.
constexpr QSize kHandle(96, 24);

const QRect *screenUnder(const QRect &area, const QList<QRect> &screens)
{
    const QRect upperEdge(area.topLeft(), QSize(area.width(), kHandle.height()));
    const auto found = std::ranges::find_if(screens, [&upperEdge](const QRect &screen) {
        const QRect seen = screen.intersected(upperEdge);
        return seen.width() >= std::min(kHandle.width(), upperEdge.width())
            && seen.height() == upperEdge.height();
    });
    return found != screens.end() ? &*found : nullptr;
}

} // namespace

QString WindowFrame::text() const
{
    const QString numbers
        = u"%1 %2 %3 %4"_s.arg(area.x()).arg(area.y()).arg(area.width()).arg(area.height());
    return maximized ? numbers + " maximized"_L1 : numbers;
}

std::optional<WindowFrame> WindowFrame::fromText(const QString &text)
{
    QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    WindowFrame frame;
    frame.maximized = words.size() == 5 && words.last() == "maximized"_L1;
    if (frame.maximized)
        words.removeLast();
    if (words.size() != 4)
        return std::nullopt;

    constexpr int kFarthest = 1'000'000; // from which no sum of two overflows
    std::array<int, 4> numbers{};
    for (size_t i = 0; i < numbers.size(); ++i) {
        bool isNumber = false;
        numbers[i] = words.at(qsizetype(i)).toInt(&isNumber);
        if (!isNumber || numbers[i] < -kFarthest || numbers[i] > kFarthest)
            return std::nullopt;
    }
    frame.area = QRect(numbers[0], numbers[1], numbers[2], numbers[3]);
    return frame.area.isEmpty() ? std::nullopt : std::optional(frame);
}

WindowPlace placeOn(const QList<QRect> &screens, const QRect &area, QSize minimum)
{
    const QRect *screen = screenUnder(area, screens);
    QSize size = area.size();
    if (screen)
        size = size.boundedTo(screen->size());
    else if (!screens.isEmpty())
        size = size.boundedTo(screens.first().size());
    return { .size = size.expandedTo(minimum),
        .position = screen ? std::optional(area.topLeft()) : std::nullopt };
}

QSize roomOn(const QRect &screen)
{
    constexpr int titleBar = 40; // of the desktops with high ones
    return screen.size() - QSize(0, titleBar);
}
