#include "kit/kit.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace {

CRVNKit::Application &installed()
{
    static CRVNKit::Application application;
    return application;
}

std::function<CNKitTheme()> &themeSource()
{
    static std::function<CNKitTheme()> source = [] { return kitTheme(CRVNThemes::current()); };
    return source;
}

std::function<void(const QString &)> &helpAction()
{
    static std::function<void(const QString &)> action
        = [](const QString &topicID) { CRVNHelp::show(topicID); };
    return action;
}

class IconEngine : public QIconEngine
{
public:
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        const int side = std::min(rect.width(), rect.height());
        painter->save();
        painter->translate(QRectF(rect).center() - QPointF(side, side) / 2);
        CRVNKitHost::paintIcon(*painter, side);
        painter->restore();
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }
    [[nodiscard]] QIconEngine *clone() const override { return new IconEngine; }
};

} // namespace

namespace CRVNKitHost {

QString appName()
{
    return installed().name;
}
CRVNKit::Version appVersion()
{
    return installed().version;
}
void paintIcon(QPainter &painter, double side)
{
    if (installed().paintIcon)
        installed().paintIcon(painter, side);
}
QIcon icon()
{
    return QIcon(new IconEngine);
}
QUrl creditURL()
{
    return installed().website;
}

CNKitTheme theme()
{
    return themeSource()();
}
void setTheme(std::function<CNKitTheme()> source)
{
    themeSource() = std::move(source);
}

void showHelp(const QString &topicID)
{
    helpAction()(topicID);
}
void setShowHelp(std::function<void(const QString &)> action)
{
    helpAction() = std::move(action);
}

} // namespace CRVNKitHost

namespace CRVNKit {

void install(const Application &application)
{
    installed() = application;
    CRVNHelp::setTopics(application.helpTopics);
    CRVNThemes::registerThemes(application.extraThemes);
}

} // namespace CRVNKit
