#include "screens/workflows/softwarekinds.h"

#include "content/records.h"

using namespace Qt::StringLiterals;

namespace SoftwareKinds {

QStringList kinds(const QList<Software> &programs)
{
    QStringList kinds;
    for (const Software &program : programs)
        kinds.append(program.kind);
    kinds.removeDuplicates();
    return kinds;
}

QList<Software> ofKind(const QString &kind, const QList<Software> &programs)
{
    QList<Software> found;
    for (const Software &program : programs) {
        if (program.kind == kind)
            found.append(program);
    }
    return found;
}

QString makerLine(const Software &program)
{
    return program.maker + u" · "_s + program.platforms;
}

QString stageLine(const WorkflowStep &step)
{
    return QString::number(step.order) + u". "_s + step.stage;
}

} // namespace SoftwareKinds
