#pragma once

#include "screens/videos/player/playersession.h"

#include <QtQml/qqml.h>

struct PlayerSessionForQml {
    Q_GADGET
    QML_FOREIGN(PlayerSession)
    QML_NAMED_ELEMENT(PlayerSession)
};
