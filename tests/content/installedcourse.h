// The course that the program ships with, for tests that hold it to its promises.
#pragma once

#include <QString>

/// The folder of the course texts in the source tree; another one if HV_CONTENT names it, so that
/// texts can be tested before they take their place.
inline QString installedCourse()
{
    const QString folder = qEnvironmentVariable("HV_CONTENT");
    return folder.isEmpty() ? QStringLiteral(HV_TEST_COURSE) : folder;
}
