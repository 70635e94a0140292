// Pictures of a QML tree without a window, a display or a graphics processor.
#pragma once

#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <QUrl>

#include <memory>

/// Renders one QML component with the software scene graph. Needs a QGuiApplication on the
/// offscreen platform.
class SceneCamera
{
public:
    /// Loads the component, an Item, at `url`.
    SceneCamera(QQmlEngine &engine, const QUrl &url);
    ~SceneCamera();
    Q_DISABLE_COPY_MOVE(SceneCamera)

    /// The picture of the component at this size, in pixels; a null image if the component could
    /// not be loaded or the size is empty. The component stays as it is, so that the next picture
    /// of it costs what has changed.
    [[nodiscard]] QImage take(QSize size);

    [[nodiscard]] QQuickItem *scene() const { return m_scene.get(); }

private:
    QQuickRenderControl m_control;
    QImage m_film; ///< The renderer repaints what has changed on it, and trusts in the rest.
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<QQuickItem> m_scene;
};
