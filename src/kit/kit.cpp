#include "kit/kit.h"

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
