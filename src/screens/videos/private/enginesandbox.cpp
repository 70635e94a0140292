#include "screens/videos/private/enginesandbox.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <cerrno>

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

#ifdef Q_OS_LINUX
// Asks the kernel, since there are several ways in which a system may forbid it.
bool mayMakeNamespaces()
{
    const pid_t child = ::fork();
    if (child < 0)
        return false;
    if (child == 0)
        ::_exit(::unshare(CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET) == 0 ? 0 : 1);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
#endif

} // namespace

bool EngineSandbox::isUsable()
{
#ifdef Q_OS_LINUX
    if (qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") != 0)
        return true;
    static const bool isUsable = ::geteuid() != 0 && mayMakeNamespaces();
    return isUsable;
#else
    return true;
#endif
}
