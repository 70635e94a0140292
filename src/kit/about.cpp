#include "kit/about.h"

#include "kit/kit.h"

using namespace Qt::StringLiterals;

namespace {

QStringList &storedLines()
{
    static QStringList lines;
    return lines;
}

std::function<void()> &storedOpener()
{
    static std::function<void()> opener;
    return opener;
}

} // namespace

namespace CRVNAbout {

QStringList extraLines()
{
    return storedLines();
}
void setExtraLines(const QStringList &lines)
{
    storedLines() = lines;
}

QString version()
{
    const CRVNKit::Version version = CRVNKitHost::appVersion();
    const QString build = version.build.isEmpty() ? QString() : " ("_L1 + version.build + u')';
    return "Version "_L1 + version.number + build;
}

QString copyrightLine(QDate today)
{
    return u"© "_s + QString::number(today.year()) + u' ' + CRVNKitHost::creditName;
}

void show()
{
    if (storedOpener())
        storedOpener()();
}
void setOpener(std::function<void()> opener)
{
    storedOpener() = std::move(opener);
}

} // namespace CRVNAbout
