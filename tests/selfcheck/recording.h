// What the groups of the self-test tell, for tests that look at single checks.
#pragma once

#include "selfcheck/selftest/testrun.h"

#include <QStringList>

/// A run whose lines are kept instead of printed.
struct Recording {
    QStringList lines;
    HVTestRun run{ [this](const QString &line) { lines.append(line); } };

    Recording() = default;
    Q_DISABLE_COPY_MOVE(Recording)

    /// The labels of the checks that have failed, or passed.
    [[nodiscard]] QStringList failed() const { return labels(QLatin1StringView("FAIL  ")); }
    [[nodiscard]] QStringList passed() const { return labels(QLatin1StringView("PASS  ")); }

private:
    [[nodiscard]] QStringList labels(QLatin1StringView beginning) const
    {
        QStringList found;
        for (const QString &line : lines) {
            if (line.startsWith(beginning))
                found.append(line.sliced(beginning.size()));
        }
        return found;
    }
};
