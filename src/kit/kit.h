// What the application tells the kit about itself, once, at the start.
//
// The kit knows nothing of photography: names, themes and (later) help topics are handed to it.
#pragma once

#include "kit/themes.h"

#include <functional>

namespace CRVNKitHost {

/// What kit windows call the program.
[[nodiscard]] QString appName();

/// Where the kit's widgets take their colors from; by default the selected theme.
[[nodiscard]] CNKitTheme theme();
void setTheme(std::function<CNKitTheme()> source);

} // namespace CRVNKitHost

namespace CRVNKit {

inline const QString version = QStringLiteral("2.0.3");

struct Application {
    QString name;
    QList<CRVNTheme> extraThemes;
};

/// Introduces the application to the kit. Calling it twice is harmless.
void install(const Application &application);

} // namespace CRVNKit
