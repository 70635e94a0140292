#include "cnui.h"

#include "kit/about.h"
#include "kit/fonts.h"
#include "kit/gradients.h"
#include "kit/kit.h"
#include "kit/motion.h"
#include "kit/opener.h"
#include "kit/preferences.h"
#include "kit/snapshotmode.h"

namespace {

using RGB = CRVNTheme::RGB;

// What the program asks of words that aren't body text.
constexpr double kContrast = 4.5;

RGB rgb(const QColor &color)
{
    return { color.redF(), color.greenF(), color.blueF() };
}

} // namespace

CNUI::CNUI(QObject *parent)
    : QObject(parent)
    , m_theme(CRVNKitHost::theme())
{
    Preferences::shared().follow(CRVNThemes::key, this, [this] {
        m_theme = CRVNKitHost::theme();
        Q_EMIT themeChanged();
    });
    connect(&Motion::shared(), &Motion::changed, this, &CNUI::animatedChanged);
}

QColor CNUI::linkInk() const
{
    return CRVNTheme::lightened(rgb(m_theme.accent), rgb(m_theme.panelTop), kContrast).color();
}

QColor CNUI::selection() const
{
    return RGB::mix(rgb(m_theme.panelTop), rgb(m_theme.accent), 0.8).color();
}

QColor CNUI::selectionInk() const
{
    const RGB ground = rgb(selection());
    const auto onGround = [&ground](const RGB &ink) { return RGB::contrast(ink, ground); };
    const RGB text = rgb(m_theme.text);
    const RGB black(0, 0, 0);
    const RGB white(1, 1, 1);
    if (onGround(text) >= kContrast)
        return text.color();
    return (onGround(white) >= onGround(black) ? white : black).color();
}

QString CNUI::appName() const
{
    return CRVNKitHost::appName();
}

bool CNUI::isPosing() const
{
    return SnapshotMode::isEnabled();
}

bool CNUI::animated() const
{
    return !isPosing() && !Motion::shared().isReduced();
}

QString CNUI::creditName() const
{
    return CRVNKitHost::creditName;
}

QString CNUI::version() const
{
    return CRVNAbout::version();
}

QStringList CNUI::aboutLines() const
{
    return CRVNAbout::extraLines();
}

QString CNUI::copyrightLine() const
{
    return CRVNAbout::copyrightLine();
}

QString CNUI::website() const
{
    return CRVNKitHost::creditURL().toString();
}

void CNUI::openAddress(const QString &address) const
{
    Opener::open(address);
}

void CNUI::showHelp(const QString &topicID) const
{
    CRVNKitHost::showHelp(topicID);
}

void CNUI::showAbout() const
{
    CRVNAbout::show();
}

QFont CNUI::cnFont(qreal size, int weight, qreal tracking) const
{
    return Fonts::rounded(size, QFont::Weight(weight), tracking);
}

QFont CNUI::cnMono(qreal size, int weight) const
{
    return Fonts::monospaced(size, QFont::Weight(weight));
}

QColor CNUI::gray(qreal white, qreal opacity) const
{
    return Painting::gray(white, opacity);
}
