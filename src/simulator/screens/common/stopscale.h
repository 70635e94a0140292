// The scales that a lab's dials run over.
#pragma once

#include <QList>
#include <QObject>
#include <QString>

/// Stops in the order in which a dial turns through them, and how each is written. A value may lie
/// between two stops: the dial then stands at the nearest. One that was made by default has no
/// stops.
class StopScale
{
    Q_GADGET
    Q_PROPERTY(QList<double> stops READ stops)
public:
    using Format = QString (*)(double);

    StopScale() = default;
    StopScale(QList<double> stops, Format format);

    [[nodiscard]] const QList<double> &stops() const { return m_stops; }

    /// The index of the stop nearest to `value`, counted in stops of light. A tie keeps the
    /// earlier; fewer than two stops give 0.
    Q_INVOKABLE [[nodiscard]] int nearest(double value) const;

    /// That stop as the dial writes it; nothing without stops.
    Q_INVOKABLE [[nodiscard]] QString label(double value) const;

    /// The stop so many places after the one nearest to `value`, or before it. It goes no further
    /// than the ends; without stops the value stays.
    Q_INVOKABLE [[nodiscard]] double moved(double value, int places) const;

    friend bool operator==(const StopScale &, const StopScale &) = default;

private:
    QList<double> m_stops;
    Format m_format = nullptr;
};

namespace StopScales {

[[nodiscard]] const StopScale &aperture();    ///< "f/4"
[[nodiscard]] const StopScale &shutter();     ///< 2" or 1/125; the longest time comes first
[[nodiscard]] const StopScale &iso();         ///< "400"
[[nodiscard]] const StopScale &focalLength(); ///< "50mm"

} // namespace StopScales
