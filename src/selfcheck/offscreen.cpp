#include "selfcheck/offscreen.h"

#include "kit/fonts.h"

#include <QQuickWindow>

OffscreenApplication::OffscreenApplication()
{
    for (const char *name : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR",
             "QT_SCREEN_SCALE_FACTORS", "QT_USE_PHYSICAL_DPI" })
        qunsetenv(name);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);

    m_application = std::make_unique<QGuiApplication>(m_argc, m_argv);
    QGuiApplication::setFont(Fonts::rounded(12.5));
}
