#include "lenscomparison.h"

#include "simulator/exposure.h"
#include "simulator/screens/common/nearestbackground.h"
#include "simulator/screens/common/photograph.h"
#include "simulator/screens/lens/lenstexts.h"

LensComparison::LensComparison(QObject *parent)
    : RowModel(parent)
    , m_offered({ 1.4, 1.8, 2.8, 5.6 })
{
    connect(&m_thumbs, &LensThumbs::thumbsChanged, this, [this] { refresh("thumb"); });
    compare();
}

double LensComparison::nearestBackground() const
{
    return ::nearestBackground(m_subject);
}

QString LensComparison::note() const
{
    return LensTexts::note();
}

void LensComparison::toggle(double aperture)
{
    const std::vector<double> chosen = LensChoices::toggled(m_offered.chosen(), aperture);
    if (m_offered.chosen() == chosen)
        return;
    m_offered.setChosen(chosen);
    compare();
}

LensLab::Conditions LensComparison::conditions() const
{
    return {
        .focal = m_focal,
        .format = SensorFormat::named(m_formatID),
        .subject = m_subject,
        .background = m_background,
        .sceneEV = LightLevel::named(m_lightID).ev,
        .iso = m_iso,
    };
}

void LensComparison::compare()
{
    const auto aperturesOf = [](const std::vector<LensLabRow> &rows) {
        std::vector<double> apertures;
        for (const LensLabRow &row : rows)
            apertures.push_back(row.aperture);
        return apertures;
    };
    std::vector<LensLabRow> rows = LensLab::rows(m_offered.chosen(), conditions());
    const bool sameLenses = aperturesOf(rows) == aperturesOf(m_rows);
    m_rows = std::move(rows);
    m_discs = LensChoices::discs(m_rows);
    if (sameLenses) {
        for (const char *role : { "light", "shutter", "blur", "depth", "shaky", "disc" })
            refresh(role);
    } else {
        show();
    }
    photograph();
}

void LensComparison::show()
{
    const auto text = [this](QString (*written)(const LensLabRow &)) {
        return [this, written](const int &, int row) { return written(m_rows.at(size_t(row))); };
    };
    // Rows stay while sliders move, and ask for their cells anew.
    showRows<int>(QList<int>(qsizetype(m_rows.size())),
        {
            { "label",
                [this](const int &, int row) {
                    return Exposure::fLabel(m_rows.at(size_t(row)).aperture);
                } },
            { "light", text(LensTexts::light) },
            { "shutter", text(LensTexts::shutter) },
            { "blur", text(LensTexts::blur) },
            { "depth", text(LensTexts::depth) },
            { "shaky",
                [this](const int &, int row) {
                    return LensChoices::isShaky(m_rows.at(size_t(row)), conditions());
                } },
            { "disc", [this](const int &, int row) { return m_discs.at(size_t(row)); } },
            { "thumb",
                [this](const int &, int row) {
                    return Photo{ m_thumbs.thumbs().value(m_rows.at(size_t(row)).aperture) };
                } },
        });
}

void LensComparison::photograph()
{
    std::vector<SimSettings> settings;
    for (const LensLabRow &row : m_rows)
        settings.push_back(LensLab::settings(row, conditions()));
    if (m_photographed == settings)
        return;
    m_photographed = std::move(settings);
    m_thumbs.renderThumbs(m_rows, conditions());
}
