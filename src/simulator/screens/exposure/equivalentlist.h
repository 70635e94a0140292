#pragma once

#include "simulator/exposure.h"
#include "simulator/simsettings.h"

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

#include <vector>

/// The pairs of f-number and time that expose as the settings do: roles `aperture`, `shutter` and
/// `iso`, as they are written, and `current` for the pair that is set.
class EquivalentList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Handed out by ExposureReadout")
public:
    explicit EquivalentList(const SimSettings &settings, QObject *parent = nullptr);

    void setSettings(const SimSettings &settings);

    /// Sets AppModel::sim to the pair of a row.
    Q_INVOKABLE void choose(int row);

private:
    void show();

    SimSettings m_settings;
    std::vector<Exposure::Pair> m_pairs;
};
