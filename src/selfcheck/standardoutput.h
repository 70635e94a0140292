// What the modes that serve no window tell whoever started them.
#pragma once

#include <QString>

/// Writes one line to standard output, in UTF-8 whatever the user's locale, and sends it off at
/// once: after a crash, the last line is what went well last.
void printLine(const QString &line);
