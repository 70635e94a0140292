// The groups of the self-test. Each tells its title and then its checks, always all of them and in
// the same order; what a check looks at may be missing, then it fails. A check over a list passes
// if the list is empty: how long the list must be is another check.
//
// The groups of course, search, help and videos look at ContentLibrary::shared().
#pragma once

#include "selfcheck/selftest/childmodes.h"
#include "selfcheck/selftest/testrun.h"

#include <QImage>
#include <QList>
#include <QUrl>

#include <functional>

struct SimSettings;

namespace HVSelfTest {

/// That the course is complete and sound.
void contentTests(HVTestRun &run);

/// Exposure, equivalent settings, sharpness and angles, as pure arithmetic.
void mathTests(HVTestRun &run);

/// That the Exposure Lab's photographs change the way their settings say, by measuring them.
void simulatorTests(HVTestRun &run);

/// The same on photographs from elsewhere; a null one counts as not rendered.
using Render = std::function<QImage(const SimSettings &)>;
void simulatorTests(HVTestRun &run, const Render &render);

/// The Lens Lab's comparison at its first settings, as pure arithmetic.
void lensLabTests(HVTestRun &run);

/// That the search finds what it should, and that the gear drawings are there. Types into
/// AppModel::shared(), and paints: it needs a QGuiApplication.
void searchTests(HVTestRun &run);

/// That progress survives the end of a process: one child writes a progress file in `folder`,
/// another reads it.
void relaunchTests(
    HVTestRun &run, const QString &folder, const ChildRunner &runChild = HVSelfTest::runChild);

/// Themes and their contrast, zoom, help and credits. Leaves another theme and a zoom of 130% in
/// the preferences.
void lookAndHelpTests(HVTestRun &run);

/// Video links, the embedded player's request, and what happens offline. `opened` tells which
/// addresses have gone to the browser, `clear` makes it forget them.
void videoTests(
    HVTestRun &run, const std::function<QList<QUrl>()> &opened, const std::function<void()> &clear);

} // namespace HVSelfTest
