// Mistakes that a run of the self-test is told to make, to see whether the checks notice.
#pragma once

#include <QSet>
#include <QString>
#include <QStringView>

namespace HVMutation {

/// The names that HV_SELFTEST_MUTATE had when the self-test began; empty until then.
[[nodiscard]] const QSet<QString> &active();

/// Takes them from the variable's text, in which commas part them. Blanks around a name are cut
/// off, and nothing between two commas is no name.
void activate(const QString &names);

/// Whether to make the mistake of this name. Never: the program has none built in, so that a run
/// with names differs from one without in its first line alone.
[[nodiscard]] constexpr bool on([[maybe_unused]] QStringView name)
{
    return false;
}

} // namespace HVMutation
