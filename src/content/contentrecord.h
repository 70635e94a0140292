// One record of a course file, as it stands there: named, not yet understood.
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

/// A header line, the field lines below it and the body below those. What the file doesn't give is
/// empty. Records are equal when they say the same, whichever file they stand in.
///
/// The views show stretches of the file's text, which the record keeps in memory: they are good for
/// as long as the record or a copy of it lives.
struct ContentRecord {
    /// A "key: value" line. Both sides may be empty.
    struct Field {
        QStringView key;
        QStringView value;
        friend bool operator==(const Field &, const Field &) = default;
    };

    QStringView type;    ///< The first word of the header, such as "LESSON".
    QStringView id;      ///< The rest of the header; blanks inside it are kept.
    QList<Field> fields; ///< In file order, with every repetition of a key.
    QStringView body;    ///< Without the blanks and line ends at its ends.
    QString text;        ///< The text that the views show stretches of.

    /// The value of the first field with exactly this key; the empty text if there is none.
    [[nodiscard]] QStringView first(QStringView key) const;

    /// The values of all fields with exactly this key, in file order.
    [[nodiscard]] QList<QStringView> all(QStringView key) const;

    friend bool operator==(const ContentRecord &a, const ContentRecord &b)
    {
        return a.type == b.type && a.id == b.id && a.fields == b.fields && a.body == b.body;
    }
};
