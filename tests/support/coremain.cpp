// The main() of tests that need Qt Core and no screen.

#include "support/ownhome.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    const OwnHome home;
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
