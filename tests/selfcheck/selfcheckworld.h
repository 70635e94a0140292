// The surroundings in which the groups of the self-test run inside a test's own process.
#pragma once

#include "support/testcourse.h"

/// Introduces the program to the kit, and keeps the preferences of whoever runs the tests out of
/// it. Calling it twice is harmless.
void prepareSelfTestGroups();

/// The texts of the course that the program ships with.
[[nodiscard]] const TestCourse::Files &installedCourseFiles();
