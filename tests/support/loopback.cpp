#include "support/loopback.h"

#include <QTcpSocket>

using namespace Qt::StringLiterals;

Loopback::Loopback()
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { serve(socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("%s", qPrintable(m_server.errorString()));
}

QUrl Loopback::address(const QString &path) const
{
    return QUrl(u"http://127.0.0.1:%1%2"_s.arg(m_server.serverPort()).arg(path));
}

void Loopback::answer(const QString &path, const QByteArray &body, const QByteArray &status,
    const QByteArray &headers)
{
    m_answers[path] = { .head = "HTTP/1.1 " + status + "\r\n" + headers, .body = body };
}

void Loopback::keepWaiting(const QString &path)
{
    m_answers[path] = { .isGiven = false };
}

QStringList Loopback::paths() const
{
    QStringList paths;
    for (const Request &request : m_requests)
        paths.append(request.path);
    return paths;
}

void Loopback::serve(QTcpSocket *socket)
{
    QByteArray data = socket->property("received").toByteArray() + socket->readAll();
    socket->setProperty("received", data);
    const qsizetype end = data.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    const QByteArrayList lines = data.first(end).split('\n');
    Request request{ .path = QString::fromUtf8(lines.first().split(' ').value(1)) };
    for (const QByteArray &line : lines.sliced(1)) {
        const qsizetype colon = line.indexOf(':');
        request.headers.insert(line.first(colon).toLower(), line.sliced(colon + 1).trimmed());
    }
    m_requests.append(request);

    const Answer answer = m_answers.value(request.path.section(u'?', 0, 0),
        { .head = "HTTP/1.1 404 Not Found\r\n", .body = "There is no such page." });
    if (!answer.isGiven)
        return;
    socket->write(answer.head
        + "Content-Type: text/html; charset=utf-8\r\nConnection: close\r\nContent-Length: "
        + QByteArray::number(answer.body.size()) + "\r\n\r\n" + answer.body);
    socket->disconnectFromHost();
}
