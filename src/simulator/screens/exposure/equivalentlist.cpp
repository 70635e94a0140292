#include "equivalentlist.h"

#include "simulator/numbertext.h"

#include "shell/appmodel.h"

using namespace Qt::StringLiterals;

EquivalentList::EquivalentList(const SimSettings &settings, QObject *parent)
    : RowModel(parent)
    , m_settings(settings)
    , m_pairs(Exposure::equivalents({ settings.aperture, settings.shutter }))
{
    show();
}

void EquivalentList::setSettings(const SimSettings &settings)
{
    const size_t before = m_pairs.size();
    m_settings = settings;
    m_pairs = Exposure::equivalents({ settings.aperture, settings.shutter });
    if (m_pairs.size() != before) {
        show();
        return;
    }
    // The rows stay, and with them the one that was clicked and has the focus.
    for (const char *role : { "aperture", "shutter", "iso", "current" })
        refresh(role);
}

void EquivalentList::choose(int row)
{
    if (row < 0 || size_t(row) >= m_pairs.size())
        return;
    SimSettings settings = m_settings;
    settings.aperture = m_pairs[size_t(row)].aperture;
    settings.shutter = m_pairs[size_t(row)].shutter;
    AppModel::shared().setSim(settings);
}

void EquivalentList::show()
{
    const auto pair = [this](int row) { return m_pairs.at(size_t(row)); };
    showRows<int>(QList<int>(qsizetype(m_pairs.size())),
        {
            { "aperture",
                [pair](const int &, int row) { return Exposure::fLabel(pair(row).aperture); } },
            { "shutter",
                [pair](const int &, int row) { return Shutter{ pair(row).shutter }.label(); } },
            { "iso",
                [this](const int &, int) {
                    return QString(u"ISO "_s + NumberText::fixed(m_settings.iso, 0));
                } },
            { "current",
                [this, pair](const int &, int row) {
                    return pair(row) == Exposure::Pair{ m_settings.aperture, m_settings.shutter };
                } },
        });
}
