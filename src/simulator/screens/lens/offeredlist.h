#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

#include <vector>

/// The f-numbers that can be compared: roles `aperture`, `label`, as it is written, and `chosen`.
class OfferedList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Handed out by LensComparison")
public:
    explicit OfferedList(std::vector<double> chosen, QObject *parent = nullptr);

    [[nodiscard]] const std::vector<double> &chosen() const { return m_chosen; }
    void setChosen(std::vector<double> apertures);

private:
    std::vector<double> m_chosen;
};
