#include "simulator/internal/renderqueue.h"

#include <QCoreApplication>
#include <QThreadPool>

using namespace Qt::StringLiterals;

namespace Simulator {

namespace {

struct Queue : QThreadPool {
    explicit Queue(const QString &name)
    {
        setObjectName(name);
        setMaxThreadCount(1);
        setExpiryTimeout(-1); // The thread keeps its working memory.
    }
};

struct Queues {
    Queue previews{ u"hv.render"_s };
    Queue thumbs{ u"hv.thumbs"_s };

    Queues()
    {
        // What has begun must not reach for an application that is gone.
        qAddPostRoutine([] { instance().end(); });
    }

    void end()
    {
        previews.clear();
        thumbs.clear();
        previews.waitForDone();
        thumbs.waitForDone();
    }

    static Queues &instance()
    {
        static Queues queues;
        return queues;
    }
};

} // namespace

QThreadPool &previewQueue()
{
    return Queues::instance().previews;
}

QThreadPool &thumbQueue()
{
    return Queues::instance().thumbs;
}

} // namespace Simulator
