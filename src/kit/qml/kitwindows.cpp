#include "kit/qml/kitwindows.h"

#include "kit/about.h"
#include "kit/help.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QScreen>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

void center(QQuickWindow &window)
{
    const QRect screen = window.screen()->availableGeometry();
    const QPoint corner = screen.center() - QRect(QPoint(), window.size()).center();
    window.setPosition(std::max(corner.x(), screen.left()), std::max(corner.y(), screen.top()));
}

void bringToFront(QQuickWindow &window)
{
    window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    window.setVisible(true);
    window.raise();
    window.requestActivate();
}

} // namespace

KitWindows::KitWindows(QQmlEngine &engine)
    : m_engine(engine)
{
    CRVNHelp::setOpener([this](const std::optional<QString> &topicID) {
        if (QQuickWindow *window = made(m_help, u"CRVNHelpWindow.qml"_s)) {
            QMetaObject::invokeMethod(
                window, "showTopic", Q_ARG(QString, CRVNHelp::topic(topicID).id));
            bringToFront(*window);
        }
    });
    CRVNAbout::setOpener([this] {
        if (QQuickWindow *window = made(m_about, u"CRVNAboutWindow.qml"_s))
            bringToFront(*window);
    });
}

KitWindows::~KitWindows()
{
    CRVNHelp::setOpener({});
    CRVNAbout::setOpener({});
}

QQuickWindow *KitWindows::made(std::unique_ptr<QQuickWindow> &window, const QString &file)
{
    if (!window) {
        QQmlComponent component(&m_engine, QUrl(u"qrc:/qt/qml/Halvorin/Kit/"_s + file));
        window.reset(qobject_cast<QQuickWindow *>(component.create()));
        if (!window)
            qWarning("%s", qPrintable(component.errorString()));
        else if (!window->property("placed").toBool())
            center(*window);
    }
    return window.get();
}
