#pragma once

#include "simulator/screens/exposure/exposuretexts.h"

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

/// The lines of a panel: roles `title` and `value`.
class FigureList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Handed out by ExposureReadout")
public:
    using Figures = std::vector<ExposureTexts::Figure>;

    explicit FigureList(Figures figures, QObject *parent = nullptr);

    /// Puts these in the place of the others, of which there are as many.
    void setFigures(Figures figures);

private:
    Figures m_figures;
};
