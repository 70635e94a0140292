#include "kit/platformwords.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace PlatformWords {

QString localized(const QString &text)
{
#ifdef Q_OS_MACOS
    return text;
#else
    QString result = text;
    result.replace("this Mac"_L1, "this computer"_L1);
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    result.replace("~/Library/Application Support"_L1, pathInText(data));
    // Texts print a true minus, the key is the hyphen's; the question mark is on the slash's key.
    result.replace(u"⌘−"_s, "Ctrl+-"_L1);
    result.replace(u"⌘?"_s, "Ctrl+Shift+/"_L1);
    // Modifiers stand before their key; the longer sign first, as it contains the shorter one.
    result.replace(u"⇧⌘"_s, "Ctrl+Shift+"_L1);
    result.replace(u"⌘"_s, "Ctrl+"_L1);
    return result;
#endif
}

QString pathInText(const QString &path)
{
#ifdef Q_OS_MACOS
    const QString home = QDir::homePath();
    if (path.startsWith(home + u'/'))
        return u'~' + path.mid(home.size());
#endif
    return QDir::toNativeSeparators(path);
}

} // namespace PlatformWords
