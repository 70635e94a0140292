// A second process for the tests of HVInfo: prints the content folder of wherever it stands.

#include "shell/info.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    std::puts(qPrintable(HVInfo::contentFolder()));
    return 0;
}
