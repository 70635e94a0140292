#include "screens/gear/private/gearcategories.h"

#include "screens/gear/gearshelf.h"

#include "content/contentlibrary.h"

GearCategories::GearCategories(QObject *parent)
    : RowModel(parent)
{
    const ContentLibrary &library = ContentLibrary::shared();
    QStringList options = library.gearCategories();
    options.prepend(GearShelf::allCategories);
    const QString all = tr("All (%1)").arg(library.gear().size());
    showRows<QString>(options,
        {
            { "optionID", [](const QString &option) { return option; } },
            { "title", [all](const QString &option, int row) { return row == 0 ? all : option; } },
        });
}
