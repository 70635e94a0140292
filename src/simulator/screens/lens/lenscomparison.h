#pragma once

#include "simulator/lenslab.h"
#include "simulator/lensthumbs.h"
#include "simulator/screens/lens/offeredlist.h"

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

#include <vector>

/// The Lens Lab: the f-numbers that are compared, what all of them share, and a row for each, the
/// fastest first. Its settings are its own, whatever is done in the Exposure Lab.
///
/// Roles: `label`, `light`, `shutter`, `blur` and `depth` as they are written; `shaky` where a hand
/// is too unsteady; `disc`, the diameter of the blur disc in points; and `thumb`, the row's
/// picture, null until it is there.
class LensComparison : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double focal MEMBER m_focal WRITE setFocal NOTIFY changed)
    Q_PROPERTY(QString formatID MEMBER m_formatID WRITE setFormatID NOTIFY changed)
    Q_PROPERTY(double subject MEMBER m_subject WRITE setSubject NOTIFY changed)
    Q_PROPERTY(double background MEMBER m_background WRITE setBackground NOTIFY changed)
    Q_PROPERTY(double nearestBackground READ nearestBackground NOTIFY changed)
    Q_PROPERTY(QString lightID MEMBER m_lightID WRITE setLightID NOTIFY changed)
    Q_PROPERTY(double iso MEMBER m_iso WRITE setIso NOTIFY changed)
    /// The f-numbers that can be compared, and which are.
    Q_PROPERTY(OfferedList *offered READ offered CONSTANT)
    Q_PROPERTY(QString note READ note CONSTANT)
public:
    explicit LensComparison(QObject *parent = nullptr);

    void setFocal(double focal) { set(m_focal, focal); }
    void setFormatID(const QString &id) { set(m_formatID, id); }
    void setSubject(double meters) { set(m_subject, meters); }
    void setBackground(double meters) { set(m_background, meters); }
    [[nodiscard]] double nearestBackground() const;
    void setLightID(const QString &id) { set(m_lightID, id); }
    void setIso(double iso) { set(m_iso, iso); }

    [[nodiscard]] OfferedList *offered() { return &m_offered; }
    [[nodiscard]] QString note() const;

    /// Takes an f-number into the comparison, or out of it while more than two are in.
    Q_INVOKABLE void toggle(double aperture);

Q_SIGNALS:
    void changed();

private:
    template <typename T>
    void set(T &field, const T &value)
    {
        if (field == value)
            return;
        field = value;
        Q_EMIT changed();
        compare();
    }

    [[nodiscard]] LensLab::Conditions conditions() const;
    void compare();
    void show();
    void photograph();

    double m_focal = 50;
    QString m_formatID = QStringLiteral("ff");
    double m_subject = 2.5;
    double m_background = 15;
    QString m_lightID = QStringLiteral("home");
    double m_iso = 1600;
    OfferedList m_offered;

    std::vector<LensLabRow> m_rows;
    std::vector<double> m_discs;
    std::vector<SimSettings> m_photographed; ///< What the pictures asked for last are of.
    LensThumbs m_thumbs;
};
