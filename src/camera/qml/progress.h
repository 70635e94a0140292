#pragma once

#include <QObject>
#include <QtQml/qqml.h>

#include <algorithm>

/// How far something has got, of which `done` out of `total` are done. Both are at least 0; nothing
/// of nothing is nothing, and more than all is possible: a finished lesson may have left the
/// course.
class Progress : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// The share for a bar or a ring, from 0 to 1.
    Q_INVOKABLE [[nodiscard]] static double fraction(int done, int total)
    {
        return total > 0 ? std::min(1.0, double(done) / total) : 0;
    }

    /// Whole percents, of which none is claimed before it is reached. Reckoned in whole numbers: as
    /// a floating-point share, 29 of 50 falls short of 58%.
    Q_INVOKABLE [[nodiscard]] static int percent(int done, int total)
    {
        return total > 0 ? int(qint64(done) * 100 / total) : 0;
    }
};
