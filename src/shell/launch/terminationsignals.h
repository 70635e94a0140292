#pragma once

namespace Launch {

/// Lets SIGTERM, SIGINT and SIGHUP end the program as closing its window does: the event loop
/// ends, the store is closed. Like that, it doesn't end over a note that isn't saved; a second
/// signal ends it in any case. A signal that was ignored at the start, as "nohup" arranges, stays
/// ignored. Without effect on platforms that have no such signals. Call once, with a
/// QCoreApplication.
void quitOnTerminationSignals();

} // namespace Launch
