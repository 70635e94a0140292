#include "shell/launch/request.h"

#include "shell/appmodel.h"
#include "shell/screen.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kContinue = "continue"_L1; // no screen is called so

} // namespace

std::optional<QString> Launch::requestIn(const QStringList &arguments)
{
    QString request;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments.at(i) == "--continue"_L1) {
            request = kContinue;
        } else if (arguments.at(i) == "--screen"_L1) {
            request = arguments.value(++i);
            if (!screenNamed(request))
                return std::nullopt;
        }
    }
    return request;
}

QString Launch::usageOfScreen()
{
    QStringList ids;
    for (const ScreenInfo &screen : allScreens())
        ids.append(screen.rawValue);
    return "Usage: halvorin --screen "_L1 + ids.join(u'|') + u'\n';
}

void Launch::fulfill(QStringView request)
{
    AppModel &model = AppModel::shared();
    const std::optional<Screen> screen = screenNamed(request);
    if (screen)
        model.setScreen(*screen);
    else if (request == kContinue)
        model.continueCourse();
    else
        return;
    model.setGlobalQuery({});
}
