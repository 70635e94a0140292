#include "figurelist.h"

FigureList::FigureList(Figures figures, QObject *parent)
    : RowModel(parent)
    , m_figures(std::move(figures))
{
    // Rows stay and ask for their texts anew: a slider that moves changes them at every frame.
    using Figure = ExposureTexts::Figure;
    const auto text = [this](QString Figure::*part) {
        return [this, part](const int &, int row) { return m_figures.at(size_t(row)).*part; };
    };
    showRows<int>(QList<int>(qsizetype(m_figures.size())),
        { { "title", text(&Figure::title) }, { "value", text(&Figure::value) } });
}

void FigureList::setFigures(Figures figures)
{
    Q_ASSERT(figures.size() == m_figures.size());
    if (m_figures == figures)
        return;
    m_figures = std::move(figures);
    refresh("title");
    refresh("value");
}
