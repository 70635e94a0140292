// A second process for the tests of SingleInstance.
//
//     child hold <folder>                       tries to be the first and stays until its input
//     ends child call <folder> <token> [<request>]   calls the first and ends
//         Prints "first" or "later", once that is decided; the second prints it again after
//         the call.

#include "shell/launch/singleinstance.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    SingleInstance instance(arguments.value(2));
    const auto printRank = [&instance] {
        std::puts(instance.isFirst() ? "first" : "later");
        std::fflush(stdout);
    };
    printRank();
    if (arguments.value(1) == "call"_L1) {
        instance.callFirst({ .activationToken = arguments.value(3).toUtf8(),
            .request = arguments.value(4).toUtf8() });
        printRank();
        return 0;
    }
    while (std::getchar() != EOF) { }
    return 0;
}
