#include "kit/quicksetup.h"

#include <QtQuickTest>

class Setup : public QuickSetup
{
    Q_OBJECT
public Q_SLOTS:
    void applicationAvailable() { QuickSetup::applicationAvailable(); }
    void qmlEngineAvailable(QQmlEngine *engine) { QuickSetup::qmlEngineAvailable(engine); }
};

QUICK_TEST_MAIN_WITH_SETUP(diagrams, Setup)

#include "quicktests.moc"
