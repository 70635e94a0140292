#include "selfcheck/selftest/testrun.h"

#include "selfcheck/standardoutput.h"
#include "simulator/numbertext.h"

#include <QLocale>

#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

HVTestRun::HVTestRun()
    : HVTestRun(printLine)
{ }

HVTestRun::HVTestRun(Output output)
    : m_output(std::move(output))
{ }

void HVTestRun::begin(const QString &title) const
{
    m_output("== "_L1 + title);
}

void HVTestRun::check(bool condition, const QString &label)
{
    ++(condition ? m_passed : m_failed);
    m_output((condition ? "PASS  "_L1 : "FAIL  "_L1) + label);
}

void HVTestRun::near(const QString &label, double value, double expected, double tolerance)
{
    const bool isNear = std::abs(value - expected) <= tolerance;
    check(isNear,
        label + ": "_L1 + NumberText::fixed(value, 4) + u" ≈ " + NumberText::fixed(expected, 4)
            + u" (±" + QString::number(tolerance, 'g', QLocale::FloatingPointShortest) + u')');
}
