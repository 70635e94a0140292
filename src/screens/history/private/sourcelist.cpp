#include "screens/history/private/sourcelist.h"

#include "content/records.h"
#include "kit/opener.h"

SourceList::SourceList(QObject *parent)
    : RowModel(parent)
{
    setSources({});
}

void SourceList::setSources(const QList<Citation> &sources)
{
    showRows<Citation>(sources,
        {
            { "title", &Citation::title },
            { "address", &Citation::url },
            { "host", [](const Citation &source) { return Opener::destination(source.url); } },
            { "checked",
                [](const Citation &source) {
                    return source.checked.isEmpty() ? QString() : tr("checked ") + source.checked;
                } },
        });
}
