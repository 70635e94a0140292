#include "store/dateformatter.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString mediumDateFormat(const QLocale &locale)
{
    // A weekday goes with what binds it to the date: all letters that don't stand for a part of the
    // date behind it, but only blanks and commas before it ("2026. nov. 15., vasárnap").
    static const QRegularExpression weekdayFirst(uR"(^dddd(?:'[^']*'|[^dMy'])*)"_s);
    static const QRegularExpression weekdayLater(uR"([\s,،]*dddd)"_s);
    return locale.dateFormat(QLocale::LongFormat)
        .remove(weekdayFirst)
        .remove(weekdayLater)
        .replace("MMMM"_L1, "MMM"_L1);
}

// What stands between date and time, as a part of a format.
QString conjunction(const QLocale &locale)
{
    return locale.language() == QLocale::English ? u" 'at' "_s : u", "_s;
}

// Where no locale is set dates are in the language of the texts.
QLocale spoken(const QLocale &locale)
{
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates)
                                           : locale;
}

// A date that is written from the right would draw its English surroundings into its direction: of
// two scores with their dates in one line, the second would stand before the first.
QString isolated(const QString &date)
{
    constexpr QChar firstStrongIsolate(0x2068);
    constexpr QChar popIsolate(0x2069);
    return date.isRightToLeft() ? firstStrongIsolate + date + popIsolate : date;
}

} // namespace

DateFormatter::DateFormatter(const QLocale &locale)
    : m_locale(spoken(locale))
    , m_day(mediumDateFormat(m_locale))
    , m_dayAndTime(m_day + conjunction(m_locale) + m_locale.timeFormat(QLocale::ShortFormat))
{ }

QString DateFormatter::day(const QDateTime &moment) const
{
    return isolated(m_locale.toString(moment.toLocalTime(), m_day));
}

QString DateFormatter::dayAndTime(const QDateTime &moment) const
{
    return isolated(m_locale.toString(moment.toLocalTime(), m_dayAndTime));
}
