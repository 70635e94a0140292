// The surroundings in which the groups of the self-test run inside a test's own process.
#pragma once

#include "support/testcourse.h"

class HVTestRun;

/// Introduces the program to the kit, and keeps the preferences of whoever runs the tests out of
/// it. Calling it twice is harmless.
void prepareSelfTestGroups();

/// The group of the videos, with the browser's part played by a list, as in a whole run.
void runVideoTests(HVTestRun &run);

/// The texts of the course that the program ships with.
[[nodiscard]] const TestCourse::Files &installedCourseFiles();
