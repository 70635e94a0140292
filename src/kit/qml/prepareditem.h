#pragma once

#include <QList>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqml.h>

class PreparedItem;

/// Has the items of a window prepare what they show, all at once, when the scene graph is about to
/// take them in one after the other.
class Preparation : public QObject
{
    Q_OBJECT
public:
    /// That of `window`, which owns it.
    [[nodiscard]] static Preparation *of(QQuickWindow *window);

    void add(PreparedItem *item) { m_items.append(item); }
    void remove(PreparedItem *item) { m_items.removeOne(item); }

private:
    explicit Preparation(QQuickWindow *window);

    // The main thread waits during both, whichever thread they run in.
    void prepare() const;
    void settle();

    QList<PreparedItem *> m_items;
};

/// An item that makes what it shows on other threads, at the same time as all others do. The main
/// thread waits meanwhile, so nothing of the item changes.
class PreparedItem : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS
public:
    explicit PreparedItem(QQuickItem *parent = nullptr);
    ~PreparedItem() override;

protected:
    /// Device pixels per logical unit.
    [[nodiscard]] double renderScale() const;

    /// In place of update(): the item is prepared first.
    void repaint();

    /// Starts to make what updatePaintNode() will show. Called while the item is visible.
    virtual void prepare() = 0;
    /// Waits for what prepare() started, if updatePaintNode() hasn't.
    virtual void settle() = 0;

    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    friend class Preparation;

    void withdraw();

    QPointer<Preparation> m_preparation;
    bool m_waits = false; ///< Known to m_preparation.
};
