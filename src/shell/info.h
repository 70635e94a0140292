// Constants and well-known places of the program.
//
// Leaf target hv_info: everything may use it, it uses Qt Core alone. The places are worked out
// anew at each call, so that a change of the environment between two calls takes effect.
#pragma once

#include <QString>
#include <QUrl>

namespace HVInfo {

inline const QString appName = QStringLiteral("CRVN Halvorin");
inline const QString creditLine = QStringLiteral("by Corvane (CRVN)");

/// The day on which product specifications, video links and history sources were last checked.
inline const QString checkedISO = QStringLiteral("2026-10-24");

inline const QString specsNote = QStringLiteral(
    "Specs as of Oct 2026, from each maker's own product page (link and date checked shown). "
    "Makers change, discontinue and replace products; check the maker's page before you buy.");

/// The maker's web site, https.
[[nodiscard]] QUrl website();

/// The version record of the program: its version, such as "1.0", and the number of the build.
[[nodiscard]] QString version();
[[nodiscard]] QString build();

/// The per-user folder "CRVN Halvorin" in the platform's place for application data, an absolute
/// path. Created if it is missing, readable by its owner only; that this failed shows later, when
/// a file in it is opened.
[[nodiscard]] QString dataFolder();

/// The progress file: HV_DB_PATH if it is set and not empty (a relative path counts from the
/// working folder), else "My Progress.sqlite" in dataFolder().
[[nodiscard]] QUrl databaseURL();

/// The same two places for a text that names them: nothing is created.
[[nodiscard]] QString dataFolderPath();
[[nodiscard]] QString databasePath();

/// The folder of the course files, an absolute path: HV_CONTENT if it is set and not empty, else
/// "content" beside the executable, else "share/crvn-halvorin/content" under the prefix that the
/// executable is installed in. The last is returned unseen: reading it then reports what fails.
[[nodiscard]] QString contentFolder();

/// The folder with the parts of the program that are loaded only when they are needed, an absolute
/// path: "plugins" beside the executable, else "lib/crvn-halvorin" under the prefix that the
/// executable is installed in. The last is returned unseen: they may not be installed.
[[nodiscard]] QString pluginFolder();

} // namespace HVInfo
