#include "store/hverror.h"

using namespace Qt::StringLiterals;

HVError::HVError(Kind kind, const QString &payload, int sqliteCode)
    : m_kind(kind)
    , m_payload(payload)
    , m_sqliteCode(sqliteCode)
    , m_what(description().toUtf8())
{
    Q_ASSERT(kind != Kind::NotFound || payload.isEmpty());
}

QString HVError::description() const
{
    switch (m_kind) {
    case Kind::Database:
        return u"The database reported a problem: "_s + m_payload;
    case Kind::Invalid:
        return m_payload;
    case Kind::BadBackup:
        return u"This file can't be restored: "_s + m_payload;
    case Kind::NotFound:
        return u"That record no longer exists."_s;
    }
    Q_UNREACHABLE();
}
