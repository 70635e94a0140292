#include "selfcheck/selftest/mutation.h"

#include <QStringList>

namespace {

QSet<QString> &names()
{
    static QSet<QString> names;
    return names;
}

} // namespace

namespace HVMutation {

const QSet<QString> &active()
{
    return names();
}

void activate(const QString &text)
{
    names().clear();
    for (const QString &piece : text.split(u',', Qt::SkipEmptyParts))
        names().insert(piece.trimmed());
}

} // namespace HVMutation
