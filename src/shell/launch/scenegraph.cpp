#include "shell/launch/scenegraph.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>

namespace {

bool hasGraphicsProcessor()
{
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return true; // Direct3D and Metal are part of the platform.
#else
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        return false;
    QOpenGLContext context;
    if (!context.create())
        return false;
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!context.makeCurrent(&surface))
        return false;
    const auto *text
        = reinterpret_cast<const char *>(context.functions()->glGetString(GL_RENDERER));
    const QByteArray renderer = QByteArray(text).toLower();
    context.doneCurrent();
    return !renderer.isEmpty() && !renderer.contains("llvmpipe") && !renderer.contains("softpipe")
        && !renderer.contains("swrast") && !renderer.contains("software");
#endif
}

} // namespace

void SceneGraph::choose()
{
    if (qEnvironmentVariableIsSet("QT_QUICK_BACKEND")
        || qEnvironmentVariableIsSet("QSG_RHI_BACKEND"))
        return;
    if (!hasGraphicsProcessor())
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}
