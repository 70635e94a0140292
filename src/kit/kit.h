// What the application tells the kit about itself, once, at the start.
//
// The kit knows nothing of photography: names, themes and help topics are handed to it.
#pragma once

#include "kit/help.h"
#include "kit/themes.h"

#include <QIcon>
#include <QUrl>

#include <functional>

class QPainter;

namespace CRVNKit {

inline const QString version = QStringLiteral("2.0.3");

/// An application's version record; either half may be empty.
struct Version {
    QString number; ///< What the user is told, such as "1.0".
    QString build;  ///< Counts the builds of one number.
};

struct Application {
    QString name = QStringLiteral("CRVN");
    Version version = {};
    QUrl website = {}; ///< Of the maker.
    /// Paints the application's icon into a square of this side from the origin on. Called from
    /// any thread.
    std::function<void(QPainter &painter, double side)> paintIcon = {};
    CRVNHelp::Topics helpTopics = {};
    QList<CRVNTheme> extraThemes = {};
};

/// Introduces the application to the kit. Calling it twice is harmless.
void install(const Application &application);

} // namespace CRVNKit

namespace CRVNKitHost {

/// What kit windows call the program.
[[nodiscard]] QString appName();
[[nodiscard]] CRVNKit::Version appVersion();
/// Paints nothing if the application has no icon.
void paintIcon(QPainter &painter, double side);
/// The same for windows: sharp in every size that a desktop asks for.
[[nodiscard]] QIcon icon();

/// Who made it, in short.
inline const QString creditName = QStringLiteral("Corvane");
/// The maker's web site; empty until the application has told it.
[[nodiscard]] QUrl creditURL();

/// Where the kit's widgets take their colors from; by default the selected theme.
[[nodiscard]] CNKitTheme theme();
void setTheme(std::function<CNKitTheme()> source);

/// Opens the help at a topic, from any screen; by default with CRVNHelp::show().
void showHelp(const QString &topicID);
void setShowHelp(std::function<void(const QString &topicID)> action);

} // namespace CRVNKitHost
