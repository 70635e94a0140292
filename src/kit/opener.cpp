#include "kit/opener.h"

#include <QDesktopServices>

using namespace Qt::StringLiterals;

namespace {

std::function<void(const QUrl &)> &storedAction()
{
    static std::function<void(const QUrl &)> action;
    return action;
}

bool leaves(const QUrl &address)
{
    return address.isValid() && !address.host().isEmpty()
        && (address.scheme() == "https"_L1 || address.scheme() == "http"_L1);
}

QUrl addressIn(const QString &text)
{
    return QUrl(text, QUrl::StrictMode);
}

} // namespace

namespace Opener {

void open(const QUrl &address)
{
    if (!leaves(address))
        return;
    if (storedAction())
        storedAction()(address);
    else
        QDesktopServices::openUrl(address);
}

void open(const QString &address)
{
    open(addressIn(address));
}

QString destination(const QString &address)
{
    const QUrl url = addressIn(address);
    return leaves(url) ? url.host() : QString();
}

void setAction(std::function<void(const QUrl &)> action)
{
    storedAction() = std::move(action);
}

} // namespace Opener
