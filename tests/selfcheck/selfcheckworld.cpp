#include "selfcheckworld.h"

#include "kit/netstatus.h"
#include "kit/opener.h"
#include "kit/preferences.h"
#include "selfcheck/selftest/groups.h"
#include "shell/setup.h"
#include "store/storetesting.h"

#include <QDir>

using namespace Qt::StringLiterals;

void prepareSelfTestGroups()
{
    Preferences::shared().keepInMemory();
    HVSetup::configure();
}

void runVideoTests(HVTestRun &run)
{
    QList<QUrl> opened;
    Opener::setAction([&](const QUrl &address) { opened.append(address); });
    HVSelfTest::videoTests(
        run, [&] { return opened; }, [&] { opened.clear(); });
    Opener::setAction({});
    NetStatus::setOverride(std::nullopt);
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
