// What nearly every plain library includes, parsed once for all of them. Nobody includes this file:
// sources name what they use.
#pragma once

#include <QColor>
#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPainter>
#include <QPainterPath>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <utility>
#include <vector>
