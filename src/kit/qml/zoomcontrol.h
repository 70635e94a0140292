#pragma once

#include <QObject>
#include <QQuickItem>
#include <QSizeF>
#include <QStringList>
#include <QtQml/qqml.h>

/// The interface zoom (kit/zoom.h) as QML sees and changes it.
class ZoomControl : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(qreal zoom READ zoom NOTIFY zoomChanged)
    Q_PROPERTY(QStringList levelTitles READ levelTitles CONSTANT)
public:
    explicit ZoomControl(QObject *parent = nullptr);

    [[nodiscard]] qreal zoom() const;
    [[nodiscard]] QStringList levelTitles() const;

    Q_INVOKABLE void zoomIn();
    Q_INVOKABLE void zoomOut();
    Q_INVOKABLE void actualSize();
    /// Takes the n-th of `levelTitles`.
    Q_INVOKABLE void chooseLevel(int index);

    Q_INVOKABLE [[nodiscard]] QSizeF logicalSize(QSizeF offered, qreal zoom, QSizeF minimum) const;
    Q_INVOKABLE [[nodiscard]] bool scrolls(QSizeF offered, qreal zoom, QSizeF minimum) const;

    /// Brings a flickable back to its origin: now, on the next turn of the event loop, and four
    /// times while the layout settles. Requests are not canceled by later ones, but they end where
    /// the reader has scrolled meanwhile, which the flickable counts as `handMoves`.
    Q_INVOKABLE void scrollHome(QQuickItem *flickable);

Q_SIGNALS:
    void zoomChanged();
};
