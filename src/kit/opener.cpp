#include "kit/opener.h"

#include <QDesktopServices>

using namespace Qt::StringLiterals;

namespace {

std::function<void(const QUrl &)> &storedAction()
{
    static std::function<void(const QUrl &)> action;
    return action;
}

} // namespace

namespace Opener {

void open(const QUrl &address)
{
    const bool leaves = address.isValid() && !address.host().isEmpty()
        && (address.scheme() == "https"_L1 || address.scheme() == "http"_L1);
    if (!leaves)
        return;
    if (storedAction())
        storedAction()(address);
    else
        QDesktopServices::openUrl(address);
}

void open(const QString &address)
{
    open(QUrl(address, QUrl::StrictMode));
}

void setAction(std::function<void(const QUrl &)> action)
{
    storedAction() = std::move(action);
}

} // namespace Opener
