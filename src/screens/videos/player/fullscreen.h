#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqml.h>

/// Takes an item out of its place and lets it fill the window, and the window the screen; puts both
/// back afterwards.
class FullScreen : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *item MEMBER m_item NOTIFY itemChanged)
    /// Of the window, while active.
    Q_PROPERTY(QSizeF size READ size NOTIFY sizeChanged)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
public:
    using QObject::QObject;
    ~FullScreen() override;

    [[nodiscard]] bool isActive() const { return !m_window.isNull(); }
    void setActive(bool active);
    [[nodiscard]] QSizeF size() const { return m_window ? QSizeF(m_window->size()) : QSizeF(); }

Q_SIGNALS:
    void itemChanged();
    void activeChanged();
    void sizeChanged();
    /// The window has left the full screen by other means, such as the desktop's.
    void refused();

private:
    void begin();
    void end();

    QPointer<QQuickItem> m_item;
    QPointer<QQuickItem> m_home;
    QPointer<QQuickWindow> m_window; ///< While active.
    QWindow::Visibility m_before = QWindow::AutomaticVisibility;
};
