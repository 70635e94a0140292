#pragma once

#include "kit/themes.h"

#include <QFont>
#include <QObject>
#include <QtQml/qqml.h>

struct CNKitThemeForQml {
    Q_GADGET
    QML_FOREIGN(CNKitTheme)
    QML_VALUE_TYPE(cnKitTheme)
};

/// What the kit tells QML: colors, fonts, motion, and the application's name, lines and windows.
class CNUI : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(CNKitTheme theme READ theme NOTIFY themeChanged)
    /// The accent, lightened where it would be hard to read on a panel.
    Q_PROPERTY(QColor linkInk READ linkInk NOTIFY themeChanged)
    /// Behind the chosen row of a list, and what reads best on it.
    Q_PROPERTY(QColor selection READ selection NOTIFY themeChanged)
    Q_PROPERTY(QColor selectionInk READ selectionInk NOTIFY themeChanged)
    Q_PROPERTY(QString appName READ appName CONSTANT)
    Q_PROPERTY(QString creditName READ creditName CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    /// True while pictures are taken of what a window would show.
    Q_PROPERTY(bool posing READ isPosing CONSTANT)
    /// False while pictures are taken, when nothing may be caught half-way, and where the desktop
    /// asks for no movement.
    Q_PROPERTY(bool animated READ animated NOTIFY animatedChanged)
public:
    explicit CNUI(QObject *parent = nullptr);

    [[nodiscard]] CNKitTheme theme() const { return m_theme; }
    [[nodiscard]] QColor linkInk() const;
    [[nodiscard]] QColor selection() const;
    [[nodiscard]] QColor selectionInk() const;
    [[nodiscard]] QString appName() const;
    [[nodiscard]] QString creditName() const;
    [[nodiscard]] QString version() const;
    [[nodiscard]] bool isPosing() const;
    [[nodiscard]] bool animated() const;

    /// The lines of the About window that are the application's own.
    Q_INVOKABLE [[nodiscard]] QStringList aboutLines() const;
    Q_INVOKABLE [[nodiscard]] QString copyrightLine() const;
    /// The maker's web site.
    Q_INVOKABLE [[nodiscard]] QString website() const;
    /// Hands a web address to the browser.
    Q_INVOKABLE void openAddress(const QString &address) const;
    /// Opens the help at a topic, at the first one if its id is empty.
    Q_INVOKABLE void showHelp(const QString &topicID = {}) const;
    Q_INVOKABLE void showAbout() const;

    /// The text font in a size in points and a weight such as Font.Bold; `tracking` is added
    /// between letters, in points.
    Q_INVOKABLE [[nodiscard]] QFont cnFont(
        qreal size, int weight = QFont::Normal, qreal tracking = 0) const;
    /// The monospaced font, for figures that must not dance.
    Q_INVOKABLE [[nodiscard]] QFont cnMono(qreal size, int weight = QFont::Normal) const;

    /// A neutral gray, 0 (black) to 1 (white).
    Q_INVOKABLE [[nodiscard]] QColor gray(qreal white, qreal opacity = 1) const;

Q_SIGNALS:
    void themeChanged();
    void animatedChanged();

private:
    CNKitTheme m_theme;
};
