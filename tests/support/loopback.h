// A web server on this machine, for tests of what loads pages.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QUrl>

/// Answers http requests from a table, and remembers them. Main thread only.
class Loopback : public QObject
{
    Q_OBJECT
public:
    struct Request {
        QString path;                          ///< With its query.
        QHash<QByteArray, QByteArray> headers; ///< By their names in lower case.
    };

    /// Listens at a port of 127.0.0.1 that is free.
    Loopback();

    [[nodiscard]] QUrl address(const QString &path) const;

    /// What is answered for a path, whatever its query; all else is not found. Headers end with
    /// "\r\n" each.
    void answer(const QString &path, const QByteArray &body, const QByteArray &status = "200 OK",
        const QByteArray &headers = {});

    /// Requests for a path are taken, and never answered.
    void keepWaiting(const QString &path);

    [[nodiscard]] const QList<Request> &requests() const { return m_requests; }
    [[nodiscard]] QStringList paths() const;

private:
    struct Answer {
        QByteArray head;
        QByteArray body;
        bool isGiven = true;
    };

    void serve(class QTcpSocket *socket);

    QTcpServer m_server;
    QHash<QString, Answer> m_answers;
    QList<Request> m_requests;
};
