// The mode in which the program checks itself, on any machine and with whatever course is there.
#pragma once

#include <QStringList>

#include <optional>

namespace HVSelfTest {

/// Names that stand in the first line of a run and mark it as one whose failures are meant.
inline constexpr auto kMutationVariable = "HV_SELFTEST_MUTATE";

/// Runs all groups of checks (groups.h), tells each check and the result on standard output, and
/// returns the exit status: 0 if all have passed, else 1. A failed check ends nothing.
///
/// Needs neither display nor graphics processor. The user's progress file isn't opened, and the
/// preferences stay as they are: this process has its own, in memory. What it stores lies in a
/// folder of its own under the system's temporary folder, removed at the end. Call it before any
/// application object exists.
[[nodiscard]] int run();

/// Handles "--selftest": run(). Nothing if the option is absent.
[[nodiscard]] std::optional<int> handle(const QStringList &arguments);

} // namespace HVSelfTest
