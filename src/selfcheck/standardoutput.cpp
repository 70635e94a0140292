#include "selfcheck/standardoutput.h"

#include <QTextStream>

void printLine(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}
