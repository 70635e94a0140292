#include "screens/gear/private/examplelist.h"

#include "screens/gear/gearshelf.h"

#include "content/records.h"
#include "kit/opener.h"

ExampleList::ExampleList(QObject *parent)
    : RowModel(parent)
{
    setExamples({});
}

void ExampleList::setExamples(const QList<GearModel> &examples)
{
    showRows<GearModel>(examples,
        {
            { "name", &GearModel::name },
            { "use", &GearModel::use },
            { "specs", &GearModel::specs },
            { "address", &GearModel::url },
            { "host", [](const GearModel &model) { return Opener::destination(model.url); } },
            { "checked",
                [](const GearModel &model) { return GearShelf::checkedLine(model.checked); } },
        });
}
