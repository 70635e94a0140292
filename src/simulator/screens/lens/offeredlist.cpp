#include "offeredlist.h"

#include "simulator/exposure.h"
#include "simulator/screens/lens/lenstexts.h"

#include <algorithm>

OfferedList::OfferedList(std::vector<double> chosen, QObject *parent)
    : RowModel(parent)
    , m_chosen(std::move(chosen))
{
    showRows<double>(QList<double>(LensChoices::offered.begin(), LensChoices::offered.end()),
        {
            { "aperture", [](const double &aperture) { return aperture; } },
            { "label", [](const double &aperture) { return Exposure::fLabel(aperture); } },
            { "chosen",
                [this](const double &aperture) {
                    return std::ranges::find(m_chosen, aperture) != m_chosen.end();
                } },
        });
}

void OfferedList::setChosen(std::vector<double> apertures)
{
    m_chosen = std::move(apertures);
    refresh("chosen");
}
