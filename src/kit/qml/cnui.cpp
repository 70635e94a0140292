#include "cnui.h"

#include "kit/fonts.h"
#include "kit/gradients.h"
#include "kit/kit.h"
#include "kit/platformwords.h"
#include "kit/preferences.h"
#include "kit/snapshotmode.h"

#include <QKeySequence>
#include <QRegularExpression>

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
