#pragma once

#include <QTimer>
#include <QtQml/qqml.h>

/// QTimer for QML. Qt Quick's own Timer is an animation at rest: where one begins in the turn of
/// the event loop in which another ends, Qt 6.4 stops what drives the animations twice and warns of
/// it.
struct EventTimer {
    Q_GADGET
    QML_FOREIGN(QTimer)
    QML_NAMED_ELEMENT(EventTimer)
};
