// The mode that shows the camera in all themes side by side.
#pragma once

#include <QStringList>

#include <optional>

namespace HVThemeSheet {

/// Handles "--theme-sheet FILE": Campus in every theme, at half its size, over the theme's name.
/// Neither the progress file nor the preferences are touched. handleSheet() tells what is returned.
[[nodiscard]] std::optional<int> handle(const QStringList &arguments);

} // namespace HVThemeSheet
