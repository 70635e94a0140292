#include "screens/workflows/private/workflowlists.h"

#include "screens/workflows/softwarekinds.h"

#include "content/contentlibrary.h"
#include "kit/opener.h"
#include "shell/appmodel.h"

WorkflowSteps::WorkflowSteps(QObject *parent)
    : RowModel(parent)
{
    showRows<WorkflowStep>(ContentLibrary::shared().workflow(),
        {
            { "stage", SoftwareKinds::stageLine },
            { "film", &WorkflowStep::film },
            { "digital", &WorkflowStep::digital },
        });
}

SoftwareKindList::SoftwareKindList(QObject *parent)
    : RowModel(parent)
{
    showRows<QString>(SoftwareKinds::kinds(ContentLibrary::shared().software()),
        {
            { "kind", [](const QString &kind) { return kind; } },
            { "caption", [](const QString &kind) { return kind.toUpper(); } },
        });
}

SoftwareList::SoftwareList(QObject *parent)
    : RowModel(parent)
{
    show(SoftwareKinds::ofKind(m_kind, ContentLibrary::shared().software()));
    connect(&AppModel::shared(), &AppModel::softwareIDChanged, this, [this] { refresh("found"); });
}

void SoftwareList::setKind(const QString &kind)
{
    if (m_kind == kind)
        return;
    m_kind = kind;
    Q_EMIT kindChanged();
    show(SoftwareKinds::ofKind(kind, ContentLibrary::shared().software()));
}

void SoftwareList::show(const QList<Software> &programs)
{
    showRows<Software>(programs,
        {
            { "softwareID", &Software::id },
            { "name", &Software::name },
            { "makerLine", SoftwareKinds::makerLine },
            { "body", &Software::body },
            { "address", &Software::url },
            { "host", [](const Software &program) { return Opener::destination(program.url); } },
            { "found",
                [](const Software &program) {
                    return AppModel::shared().softwareID() == program.id;
                } },
        });
}
