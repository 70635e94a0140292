// The main() of tests that need Qt Gui or Qt Quick.

#include "support/ownhome.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

namespace {

void setUnlessSet(const char *name, const char *value)
{
    if (!qEnvironmentVariableIsSet(name))
        qputenv(name, value);
}

} // namespace

int main(int argc, char **argv)
{
    // Here and not only in the settings of ctest: the build lists the tests by running the program
    // as it is, on machines that have neither a display nor a graphics processor.
    setUnlessSet("QT_QPA_PLATFORM", "offscreen");
    setUnlessSet("QT_QUICK_BACKEND", "software");
    // As the program does: one design point is one logical pixel.
    qputenv("QT_FONT_DPI", "72");

    ::testing::InitGoogleTest(&argc, argv);
    const OwnHome home;
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
