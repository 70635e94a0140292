#pragma once

namespace Launch {

/// Lets SIGTERM, SIGINT and SIGHUP end the program as closing its window does: the event loop
/// ends, the store is closed. A signal that was ignored at the start, as "nohup" arranges, stays
/// ignored. Without effect on platforms that have no such signals. Call once, with a
/// QCoreApplication.
void quitOnTerminationSignals();

} // namespace Launch
