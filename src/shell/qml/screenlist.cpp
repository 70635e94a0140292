#include "screenlist.h"

#include "shell/screen.h"

using namespace Qt::StringLiterals;

int ScreenList::count() const
{
    return int(allScreens().size());
}

QStringList ScreenList::components() const
{
    QStringList result;
    for (const ScreenInfo &info : allScreens())
        result.append(info.component);
    return result;
}

int ScreenList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ScreenList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ScreenInfo &info = allScreens().at(index.row());
    switch (role) {
    case ScreenRole:
        return QVariant::fromValue(info.screen);
    case TitleRole:
        return info.title;
    case SymbolRole:
        return info.symbol;
    case ShortcutRole:
        return index.row() < 9 ? u"Ctrl+%1"_s.arg(index.row() + 1) : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> ScreenList::roleNames() const
{
    return { { ScreenRole, "screen" }, { TitleRole, "title" }, { SymbolRole, "symbol" },
        { ShortcutRole, "shortcut" } };
}
