#include "simulator/screens/common/unhurriedtext.h"

UnhurriedText::UnhurriedText(std::chrono::milliseconds interval, QObject *parent)
    : QObject(parent)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(interval);
    connect(&m_pause, &QTimer::timeout, this, &UnhurriedText::show);
}

void UnhurriedText::setText(const QString &text)
{
    m_newest = text;
    if (!m_pause.isActive())
        show();
}

void UnhurriedText::show()
{
    if (m_text == m_newest)
        return;
    m_text = m_newest;
    m_pause.start();
    Q_EMIT textChanged();
}
