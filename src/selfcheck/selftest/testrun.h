// One run of the self-test: counts its checks and tells each of them as it happens.
#pragma once

#include <QString>

#include <functional>

/// Every check is a line of its own, so that the lines of two runs can be held against each other.
class HVTestRun
{
public:
    /// Takes one line, without its end.
    using Output = std::function<void(const QString &line)>;

    /// Tells standard output.
    HVTestRun();
    explicit HVTestRun(Output output);

    /// Heads a group of checks: "== " and its title.
    void begin(const QString &title) const;

    /// Counts a check, and tells it as "PASS" or "FAIL", two blanks and its label.
    void check(bool condition, const QString &label);

    /// A check that `value` lies within `tolerance` of `expected`. Its label goes on with the three
    /// numbers, such as ": 14.9658 ≈ 14.9660 (±0.01)": four decimals, and the tolerance in the
    /// shortest text that reads as that number. NaN is near nothing.
    void near(const QString &label, double value, double expected, double tolerance);

    [[nodiscard]] int passed() const { return m_passed; }
    [[nodiscard]] int failed() const { return m_failed; }

private:
    Output m_output;
    int m_passed = 0;
    int m_failed = 0;
};
