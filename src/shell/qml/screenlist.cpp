#include "screenlist.h"

#include "shell/screen.h"

using namespace Qt::StringLiterals;

int ScreenList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(allScreens().size());
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
        return u"Ctrl+%1"_s.arg(index.row() + 1);
    default:
        return {};
    }
}

QHash<int, QByteArray> ScreenList::roleNames() const
{
    return { { ScreenRole, "screen" }, { TitleRole, "title" }, { SymbolRole, "symbol" },
        { ShortcutRole, "shortcut" } };
}
