#include "selfcheckworld.h"

#include "kit/preferences.h"
#include "shell/setup.h"
#include "store/storetesting.h"

#include <QDir>

using namespace Qt::StringLiterals;

void prepareSelfTestGroups()
{
    Preferences::shared().keepInMemory();
    HVSetup::configure();
}

const TestCourse::Files &installedCourseFiles()
{
    static const TestCourse::Files files = [] {
        TestCourse::Files read;
        for (const QString &name : TestCourse::files().keys())
            read.insert(name, StoreTesting::fileBytes(QStringLiteral(HV_TEST_COURSE "/") + name));
        return read;
    }();
    return files;
}
