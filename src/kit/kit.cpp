#include "kit/kit.h"

namespace {

QString &storedAppName()
{
    static QString name = QStringLiteral("CRVN");
    return name;
}

std::function<CNKitTheme()> &themeSource()
{
    static std::function<CNKitTheme()> source = [] { return kitTheme(CRVNThemes::current()); };
    return source;
}

} // namespace

namespace CRVNKitHost {

QString appName()
{
    return storedAppName();
}

CNKitTheme theme()
{
    return themeSource()();
}
void setTheme(std::function<CNKitTheme()> source)
{
    themeSource() = std::move(source);
}

} // namespace CRVNKitHost

namespace CRVNKit {

void install(const Application &application)
{
    storedAppName() = application.name;
    CRVNThemes::registerThemes(application.extraThemes);
}

} // namespace CRVNKit
