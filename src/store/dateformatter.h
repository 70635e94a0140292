// The dates of the user's data, as texts.
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

/// Writes dates at medium length, in local time and as the locale has it: "Nov 15, 2026" and
/// "Nov 15, 2026 at 3:04 PM" in en_US, "15. Nov. 2026, 15:04" in de_DE.
///
/// QLocale knows a long date, which opens with the weekday, and a short one of figures alone. The
/// medium one is the long one without its weekday and with the month's short name. One that is
/// written from the right stands between isolating marks (Unicode Standard Annex 9), so that it
/// can be put into an English line.
class DateFormatter
{
public:
    explicit DateFormatter(const QLocale &locale = QLocale::system());

    [[nodiscard]] QString day(const QDateTime &moment) const;
    [[nodiscard]] QString dayAndTime(const QDateTime &moment) const;

private:
    QLocale m_locale;
    QString m_day;
    QString m_dayAndTime;
};
