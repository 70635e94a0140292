#pragma once

#include <QtGlobal>

#include <unistd.h>

/// While it lives, the tests' process can do no more than an ordinary user, even if root runs it:
/// only then does a folder without write permission refuse to be written to.
class OrdinaryUser
{
public:
    OrdinaryUser()
    {
        constexpr uid_t nobody = 65534;
        if (m_self == 0 && seteuid(nobody) != 0)
            qFatal("Root can't become an ordinary user.");
    }
    ~OrdinaryUser()
    {
        if (m_self == 0 && seteuid(0) != 0)
            qFatal("An ordinary user can't become root again.");
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    const uid_t m_self = geteuid();
};
