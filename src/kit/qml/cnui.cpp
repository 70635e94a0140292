#include "cnui.h"

#include "kit/fonts.h"
#include "kit/gradients.h"
#include "kit/kit.h"
#include "kit/platformwords.h"
#include "kit/preferences.h"
#include "kit/snapshotmode.h"
#include "kit/zoom.h"

#include <QKeySequence>
#include <QPointer>
#include <QRegularExpression>
#include <QTimer>

using namespace std::chrono_literals;

CNUI::CNUI(QObject *parent)
    : QObject(parent)
    , m_theme(CRVNKitHost::theme())
{
    Preferences::shared().follow(CRVNThemes::key, this, [this] {
        m_theme = CRVNKitHost::theme();
        Q_EMIT themeChanged();
    });
}

QString CNUI::appName() const
{
    return CRVNKitHost::appName();
}

bool CNUI::animated() const
{
    return !SnapshotMode::isEnabled();
}

QFont CNUI::cnFont(qreal size, int weight, qreal tracking) const
{
    return Fonts::rounded(size, QFont::Weight(weight), tracking);
}

QFont CNUI::cnMono(qreal size, int weight) const
{
    return Fonts::monospaced(size, QFont::Weight(weight));
}

QString CNUI::localized(const QString &text) const
{
    return PlatformWords::localized(text);
}

QString CNUI::shortcutText(const QString &sequence) const
{
    return QKeySequence(sequence).toString(QKeySequence::NativeText);
}

QString CNUI::withoutMnemonic(const QString &text) const
{
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    return QString(text).replace(mark, QStringLiteral("\\1"));
}

QString CNUI::withLiteralMarks(const QString &words) const
{
    return QString(words).replace(u'&', QStringLiteral("&&"));
}

QColor CNUI::gray(qreal white, qreal opacity) const
{
    return Painting::gray(white, opacity);
}

ThemeList::ThemeList(QObject *parent)
    : RowModel(parent)
{
    showRows<CRVNTheme>(CRVNThemes::all(),
        {
            { "name", &CRVNTheme::name },
            { "themeID", &CRVNTheme::id },
            { "themeChecked",
                [](const CRVNTheme &theme) { return theme.id == CRVNThemes::currentID(); } },
        });
    Preferences::shared().follow(CRVNThemes::key, this, [this] { refresh("themeChecked"); });
}

void ThemeList::choose(const QString &themeID)
{
    CRVNThemes::setCurrentID(themeID);
}

ZoomControl::ZoomControl(QObject *parent)
    : QObject(parent)
{
    Preferences::shared().follow(CNZoom::key, this, [this] { Q_EMIT zoomChanged(); });
}

qreal ZoomControl::zoom() const
{
    return CNZoom::value();
}

QStringList ZoomControl::levelTitles() const
{
    QStringList titles;
    for (int percent : CNZoom::levels)
        titles.append(CNZoom::levelTitle(percent));
    return titles;
}

void ZoomControl::zoomIn()
{
    CNZoom::setValue(CNZoom::value() + CNZoom::step);
}
void ZoomControl::zoomOut()
{
    CNZoom::setValue(CNZoom::value() - CNZoom::step);
}
void ZoomControl::actualSize()
{
    CNZoom::setValue(1);
}

void ZoomControl::chooseLevel(int index)
{
    if (index >= 0 && index < int(CNZoom::levels.size()))
        CNZoom::setValue(CNZoom::levels[size_t(index)] / 100.0);
}

QSizeF ZoomControl::logicalSize(QSizeF offered, qreal zoom, QSizeF minimum) const
{
    return CNZoom::layout(offered, zoom, minimum).logical;
}

bool ZoomControl::scrolls(QSizeF offered, qreal zoom, QSizeF minimum) const
{
    return CNZoom::layout(offered, zoom, minimum).scrolls;
}

void ZoomControl::scrollHome(QQuickItem *flickable)
{
    const auto home = [flickable = QPointer(flickable)] {
        if (!flickable)
            return;
        flickable->setProperty("contentX", 0);
        flickable->setProperty("contentY", 0);
    };
    home();
    for (const auto delay : { 0ms, 150ms, 400ms, 900ms, 1600ms })
        QTimer::singleShot(delay, this, home);
}
