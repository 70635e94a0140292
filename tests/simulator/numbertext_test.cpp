#include "simulator/numbertext.h"

#include "support/qtprinters.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

using namespace Qt::StringLiterals;

namespace {

// The numbers of a locale, for the C library and for Qt, while the object lives.
class NumbersOf
{
public:
    NumbersOf(const char *forC, const QLocale &forQt)
        : m_before(std::setlocale(LC_NUMERIC, nullptr))
    {
        std::setlocale(LC_NUMERIC, forC); // changes nothing where the machine doesn't have it
        QLocale::setDefault(forQt);
    }
    ~NumbersOf()
    {
        std::setlocale(LC_NUMERIC, m_before.c_str());
        QLocale::setDefault(QLocale::system());
    }
    NumbersOf(const NumbersOf &) = delete;
    NumbersOf &operator=(const NumbersOf &) = delete;

private:
    std::string m_before;
};

} // namespace

TEST(NumberText, RoundsTiesToTheEvenDigit)
{
    EXPECT_EQ(NumberText::fixed(2.25, 1), u"2.2"_s);
    EXPECT_EQ(NumberText::fixed(2.75, 1), u"2.8"_s);
    EXPECT_EQ(NumberText::fixed(-2.25, 1), u"-2.2"_s);
    EXPECT_EQ(NumberText::fixed(0.125, 2), u"0.12"_s);
    EXPECT_EQ(NumberText::fixed(0.375, 2), u"0.38"_s);
    EXPECT_EQ(NumberText::fixed(0.5, 0), u"0"_s);
    EXPECT_EQ(NumberText::fixed(1.5, 0), u"2"_s);
    EXPECT_EQ(NumberText::fixed(2.5, 0), u"2"_s);
    EXPECT_EQ(NumberText::fixed(1022.5, 0), u"1022"_s);
}

TEST(NumberText, RoundsTheNumberThatIsReallyThere)
{
    // No double is 2.35 or 1.005: the one lies above, the other below.
    EXPECT_EQ(NumberText::fixed(2.35, 1), u"2.4"_s);
    EXPECT_EQ(NumberText::fixed(1.005, 2), u"1.00"_s);
    EXPECT_EQ(NumberText::fixed(std::nextafter(2.25, 3), 1), u"2.3"_s);
    EXPECT_EQ(NumberText::fixed(std::nextafter(2.75, 2), 1), u"2.7"_s);
    EXPECT_EQ(NumberText::fixed(9.999, 2), u"10.00"_s);
}

TEST(NumberText, KeepsItsZeros)
{
    EXPECT_EQ(NumberText::fixed(0, 2), u"0.00"_s);
    EXPECT_EQ(NumberText::fixed(8, 1), u"8.0"_s);
    EXPECT_EQ(NumberText::fixed(1250000, 0), u"1250000"_s);
}

TEST(NumberText, ShowsWhatIsNoOrdinaryNumber)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(NumberText::fixed(-0.0, 1), u"-0.0"_s);
    EXPECT_EQ(NumberText::fixed(-0.04, 1), u"-0.0"_s);
    EXPECT_EQ(NumberText::fixed(infinity, 1), u"inf"_s);
    EXPECT_EQ(NumberText::fixed(-infinity, 0), u"-inf"_s);
    EXPECT_EQ(NumberText::fixed(nan, 2), u"nan"_s);
    EXPECT_EQ(NumberText::fixed(-nan, 2), u"nan"_s);
}

TEST(NumberText, HasAPointInEveryLocale)
{
    const NumbersOf germany("de_DE.UTF-8", QLocale(QLocale::German));
    EXPECT_EQ(NumberText::fixed(1234567.5, 2), u"1234567.50"_s);
}

TEST(NumberText, IsAsLongAsItHasToBe)
{
    EXPECT_EQ(
        NumberText::fixed(std::numeric_limits<double>::lowest(), 20).size(), 1 + 309 + 1 + 20);
    EXPECT_EQ(NumberText::fixed(std::numeric_limits<double>::denorm_min(), 20),
        u"0.00000000000000000000"_s);
}

TEST(NumberText, IsWhatTheFormatGives)
{
    const NumbersOf reference("C", QLocale::c());
    std::mt19937 generator(5);
    std::uniform_int_distribution<int> eighths(-80'000, 80'000);
    std::uniform_real_distribution<double> anywhere(-1000, 1000);
    for (int i = 0; i < 10'000; ++i) {
        for (const double value : { eighths(generator) / 8.0, anywhere(generator) }) {
            for (const int decimals : { 0, 1, 2, 4 }) {
                char expected[64];
                std::snprintf(expected, sizeof expected, "%.*f", decimals, value);
                ASSERT_EQ(NumberText::fixed(value, decimals), QLatin1StringView(expected)) << value;
            }
        }
    }
}
