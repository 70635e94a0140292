#include "shell/launch/scenegraph.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace {

bool isSetByEnvironment()
{
    return qEnvironmentVariableIsSet("QT_QUICK_BACKEND")
        || qEnvironmentVariableIsSet("QSG_RHI_BACKEND");
}

#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
// Direct3D and Metal are part of the platform.
bool hasDevice()
{
    return true;
}

bool drawsOnDevice()
{
    return true;
}
#else
// Whether the kernel shows a graphics processor: a render node, or the devices of drivers that do
// without one.
bool hasDevice()
{
    return !QDir(u"/dev/dri"_s).entryList({ u"renderD*"_s }, QDir::System).isEmpty()
        || QFile::exists(u"/dev/nvidiactl"_s) || QFile::exists(u"/dev/dxg"_s);
}

// Whether this display lets us draw on it; a GL that runs on the processor stands in if not.
bool drawsOnDevice()
{
    if (QGuiApplication::platformName() == "offscreen"_L1)
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
}
#endif

} // namespace

void SceneGraph::prepare()
{
    const bool mayUseGL
        = isSetByEnvironment() ? qgetenv("QT_QUICK_BACKEND") != "software" : hasDevice();
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts, mayUseGL);
}

void SceneGraph::choose()
{
    if (isSetByEnvironment())
        return;
    if (!hasDevice() || !drawsOnDevice())
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}
