#pragma once

#include "simulator/simsettings.h"

#include <QObject>
#include <QString>
#include <QtQml/qqml.h>

/// What the user sets in the Exposure Lab: one property for each control, all of them held by
/// AppModel::sim. `lightID` alone is its own, since a brightness may be that of no level or of
/// several.
class ExposureControls : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString lightID READ lightID WRITE setLightID NOTIFY changed)
    Q_PROPERTY(double aperture READ aperture WRITE setAperture NOTIFY changed)
    Q_PROPERTY(double shutter READ shutter WRITE setShutter NOTIFY changed)
    Q_PROPERTY(double iso READ iso WRITE setIso NOTIFY changed)
    Q_PROPERTY(double focal READ focal WRITE setFocal NOTIFY changed)
    Q_PROPERTY(QString formatID READ formatID WRITE setFormatID NOTIFY changed)
    Q_PROPERTY(double subjectDistance READ subjectDistance WRITE setSubjectDistance NOTIFY changed)
    Q_PROPERTY(double backgroundDistance READ backgroundDistance WRITE setBackgroundDistance NOTIFY
            changed)
    /// Moves with the subject; a background that it overtakes stays where it is.
    Q_PROPERTY(double nearestBackground READ nearestBackground NOTIFY changed)
    Q_PROPERTY(double moverSpeed READ moverSpeed WRITE setMoverSpeed NOTIFY changed)
public:
    explicit ExposureControls(QObject *parent = nullptr);

    [[nodiscard]] QString lightID() const { return m_lightID; }
    void setLightID(const QString &id);
    [[nodiscard]] double aperture() const;
    void setAperture(double aperture);
    [[nodiscard]] double shutter() const;
    void setShutter(double seconds);
    [[nodiscard]] double iso() const;
    void setIso(double iso);
    [[nodiscard]] double focal() const;
    void setFocal(double focal);
    [[nodiscard]] QString formatID() const;
    void setFormatID(const QString &id);
    [[nodiscard]] double subjectDistance() const;
    void setSubjectDistance(double meters);
    [[nodiscard]] double backgroundDistance() const;
    void setBackgroundDistance(double meters);
    [[nodiscard]] double nearestBackground() const;
    [[nodiscard]] double moverSpeed() const;
    void setMoverSpeed(double metersPerSecond);

    /// Aperture priority, once.
    Q_INVOKABLE void meterShutter();
    /// Shutter priority, once.
    Q_INVOKABLE void meterAperture();

Q_SIGNALS:
    void changed();

private:
    template <typename T>
    void set(T SimSettings::*field, const T &value);

    QString m_lightID;
};
