// Lets GoogleTest's messages show Qt's texts as texts. Every file of a test program that compares
// texts includes this.
#pragma once

#include <QString>
#include <QStringView>

#include <ostream>

inline void PrintTo(QStringView text, std::ostream *stream)
{
    *stream << '"' << text.toUtf8().constData() << '"';
}

inline void PrintTo(const QString &text, std::ostream *stream)
{
    PrintTo(QStringView(text), stream);
}
