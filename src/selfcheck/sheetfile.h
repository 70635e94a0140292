// What the modes have in common that paint one large picture for developers.
#pragma once

#include <QImage>
#include <QLatin1StringView>
#include <QStringList>

#include <functional>
#include <optional>

/// Handles an option that names a PNG file, such as "--diagram-sheet FILE": paints the picture on
/// the offscreen platform, in the colors of the user's theme, and writes it. Returns the exit
/// status, 0 and a line on standard output if the file was written, 1 and a message on standard
/// error otherwise, 2 and the usage there if the option names no file; nothing if it is absent.
///
/// Call it before any application object exists.
[[nodiscard]] std::optional<int> handleSheet(
    const QStringList &arguments, QLatin1StringView option, const std::function<QImage()> &paint);
