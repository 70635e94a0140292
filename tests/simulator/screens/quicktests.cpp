#include "screens/quickworld.h"

#include <QtQuickTest>

class Setup : public ScreensSetup
{
    Q_OBJECT
public Q_SLOTS:
    void applicationAvailable() { ScreensSetup::applicationAvailable(); }
    void qmlEngineAvailable(QQmlEngine *engine) { ScreensSetup::qmlEngineAvailable(engine); }
    void cleanupTestCase() { ScreensSetup::cleanupTestCase(); }
};

QUICK_TEST_MAIN_WITH_SETUP(simulator, Setup)

#include "quicktests.moc"
