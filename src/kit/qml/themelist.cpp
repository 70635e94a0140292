#include "themelist.h"

#include "kit/preferences.h"
#include "kit/themes.h"

ThemeList::ThemeList(QObject *parent)
    : RowModel(parent)
{
    showRows<CRVNTheme>(CRVNThemes::all(),
        {
            { "name", &CRVNTheme::name },
            { "themeID", &CRVNTheme::id },
            { "themeChecked",
                [](const CRVNTheme &theme) { return theme.id == CRVNThemes::currentID(); } },
        });
    Preferences::shared().follow(CRVNThemes::key, this, [this] { refresh("themeChecked"); });
}

void ThemeList::choose(const QString &themeID)
{
    CRVNThemes::setCurrentID(themeID);
}
