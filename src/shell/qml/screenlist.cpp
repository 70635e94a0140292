#include "screenlist.h"

#include "shell/screen.h"

using namespace Qt::StringLiterals;

ScreenList::ScreenList(QObject *parent)
    : RowModel(parent)
{
    showRows<ScreenInfo>(allScreens(),
        {
            { "screen", &ScreenInfo::screen },
            { "title", &ScreenInfo::title },
            { "symbol", &ScreenInfo::symbol },
            { "shortcut",
                [](const ScreenInfo &, int row) {
                    return row < 9 ? u"Ctrl+%1"_s.arg(row + 1) : QString();
                } },
        });
}

QStringList ScreenList::components() const
{
    QStringList result;
    for (const ScreenInfo &info : allScreens())
        result.append(info.component);
    return result;
}
