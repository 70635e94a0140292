// The table of the figures that lessons print.
//
// figures.tsv holds one figure a line: the lesson's id, a passage of its body, a calculation and
// the figure as the passage prints it, with tabs between them. A calculation is a name of the table
// below and its arguments, such as "near focal=50 aperture=8 format=ff focus=3 unit=m":
//   focal                      mm
//   focus, object, distance    m
//   speed                      m/s
//   shutter                    s; a fraction such as 1/125 is allowed
//   light                      EV at ISO 100, or the id of a light level
//   format, side               the id of a sensor format; width (unless told), height or diagonal
//   unit                       m (unless told), cm or mm of a length; s of a time; % of a share
#pragma once

#include "simulator/exposure.h"
#include "simulator/scales.h"

#include <QFile>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

/// A line of the table.
struct FigureLine {
    QString where; ///< For messages: the line and its number.
    QString lesson;
    QString passage;
    QString calculation;
    QString printed;
};

/// The lines of the table, in which a line that hasn't four columns is a failure of the test.
inline QList<FigureLine> figureLines(const QString &path)
{
    QFile table(path);
    if (!table.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "There is no table of figures.";
        return {};
    }
    QList<FigureLine> figures;
    const QStringList lines = QString::fromUtf8(table.readAll()).split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].trimmed().isEmpty() || lines[i].startsWith(u'#'))
            continue;
        const QString where = QStringLiteral("figures.tsv:%1: %2").arg(i + 1).arg(lines[i]);
        const QStringList columns = lines[i].split(u'\t');
        if (columns.size() == 4)
            figures.append({ where, columns[0], columns[1], columns[2], columns[3] });
        else
            ADD_FAILURE() << where.toStdString() << ": a figure has four columns.";
    }
    return figures;
}

/// A number or a fraction as it is printed; nothing for any other text.
inline std::optional<double> number(QString text)
{
    const QStringList parts = text.remove(u',').replace(u'−', u'-').split(u'/');
    bool isNumber = false;
    const double value = parts[0].toDouble(&isNumber);
    if (parts.size() == 1)
        return isNumber ? std::optional(value) : std::nullopt;
    bool isDivisor = false;
    const double divisor = parts[1].toDouble(&isDivisor);
    return isNumber && isDivisor && parts.size() == 2 ? std::optional(value / divisor)
                                                      : std::nullopt;
}

/// The arguments of one calculation. Asking for one that isn't there spoils the result.
class Arguments
{
public:
    explicit Arguments(const QStringList &words)
    {
        for (const QString &word : words)
            m_texts.insert(word.section(u'=', 0, 0), word.section(u'=', 1));
    }

    [[nodiscard]] bool has(const QString &name) const { return m_texts.contains(name); }
    [[nodiscard]] QString text(const QString &name) const { return m_texts.value(name); }

    [[nodiscard]] double operator[](const QString &name) const
    {
        return number(m_texts.value(name)).value_or(std::nan(""));
    }

    [[nodiscard]] double light() const
    {
        const QString id = text(QStringLiteral("light"));
        const LightLevel &level = LightLevel::named(id);
        return level.id == id ? level.ev : (*this)[QStringLiteral("light")];
    }

    [[nodiscard]] SensorFormat format() const
    {
        const SensorFormat &format = SensorFormat::named(text(QStringLiteral("format")));
        EXPECT_EQ(format.id, text(QStringLiteral("format")));
        return format;
    }

    [[nodiscard]] double side() const
    {
        const QString name = text(QStringLiteral("side"));
        if (name == u"height")
            return format().height;
        if (name == u"diagonal")
            return format().diagonal();
        EXPECT_TRUE(name.isEmpty() || name == u"width") << name.toStdString();
        return format().width;
    }

    [[nodiscard]] Exposure::Lens lens() const
    {
        return { (*this)[QStringLiteral("focal")], aperture() };
    }
    [[nodiscard]] double aperture() const { return (*this)[QStringLiteral("aperture")]; }
    [[nodiscard]] double shutter() const { return (*this)[QStringLiteral("shutter")]; }
    [[nodiscard]] double iso() const { return (*this)[QStringLiteral("iso")]; }
    [[nodiscard]] double focal() const { return (*this)[QStringLiteral("focal")]; }

private:
    QHash<QString, QString> m_texts;
};
