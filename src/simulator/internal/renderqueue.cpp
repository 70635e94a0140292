#include "simulator/internal/renderqueue.h"

#include <QCoreApplication>
#include <QThreadPool>

using namespace Qt::StringLiterals;

QThreadPool &renderQueue()
{
    static QThreadPool *const queue = [] {
        static QThreadPool pool;
        pool.setObjectName(u"hv.render"_s);
        pool.setMaxThreadCount(1);
        // What still waits must not reach for an application that is gone.
        qAddPostRoutine([] { renderQueue().waitForDone(); });
        return &pool;
    }();
    return *queue;
}
