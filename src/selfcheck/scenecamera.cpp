#include "selfcheck/scenecamera.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQuickRenderTarget>

SceneCamera::SceneCamera(QQmlEngine &engine, const QUrl &url)
    : m_window(std::make_unique<QQuickWindow>(&m_control))
{
    QQmlComponent component(&engine, url);
    std::unique_ptr<QObject> object(component.create());
    if (!object) {
        qWarning("%s", qPrintable(component.errorString()));
        return;
    }
    if (auto *item = qobject_cast<QQuickItem *>(object.get())) {
        std::ignore = object.release();
        m_scene.reset(item);
        item->setParentItem(m_window->contentItem());
    }
}

SceneCamera::~SceneCamera() = default;

QImage SceneCamera::take(QSize size)
{
    if (!m_scene || size.isEmpty())
        return {};

    if (m_film.size() != size) {
        m_window->setGeometry(QRect({}, size));
        m_window->contentItem()->setSize(size);
        m_scene->setSize(size);
        m_film = QImage(size, QImage::Format_ARGB32_Premultiplied);
        m_film.fill(m_window->color());
        m_window->setRenderTarget(QQuickRenderTarget::fromPaintDevice(&m_film));
    }

    // What a change has put off (delayed calls, bindings of a Loader) happens before the picture.
    // Two passes: items that are drawn through a layer of their own appear in the second.
    for (int pass = 0; pass < 2; ++pass) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        m_control.polishItems();
        m_control.sync();
        m_control.render();
    }
    return m_film.copy();
}
