// A second process for the tests of HVInfo: prints the content folder of wherever it stands or, if
// it is given an argument, the folder of the plugins.

#include "shell/info.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    std::puts(qPrintable(argc > 1 ? HVInfo::pluginFolder() : HVInfo::contentFolder()));
    return 0;
}
