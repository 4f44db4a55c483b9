#pragma once

#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

namespace support {

/// A server on the loopback interface that answers what it was given, and keeps the paths it was asked for.
class ServeurDeTest : public QTcpServer
{
public:
    QHash<QByteArray, QByteArray> Reponses; ///< by path: head and body; an empty one never comes
    QList<QByteArray> Demandes;
    QByteArrayList Entetes; ///< the heads of the requests

    ServeurDeTest()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* liaison = nextPendingConnection()) {
                connect(liaison, &QTcpSocket::readyRead, this, [this, liaison] { Repond(liaison); });
            }
        });
    }

    QUrl Adresse(const QByteArray& chemin) const
    {
        return QUrl(
            QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(QString::fromLatin1(chemin)));
    }
    void Pose(const QByteArray& chemin, const QByteArray& corps, const QByteArray& genre = "text/html")
    {
        Reponses.insert(chemin, "HTTP/1.1 200 OK\r\nContent-Type: " + genre +
                                    "\r\nContent-Length: " + QByteArray::number(corps.size()) +
                                    "\r\nConnection: close\r\n\r\n" + corps);
    }
    void Renvoie(const QByteArray& chemin, const QByteArray& cible)
    {
        Reponses.insert(chemin, "HTTP/1.1 302 Found\r\nLocation: " + cible +
                                    "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    }

private:
    void Repond(QTcpSocket* liaison)
    {
        const QByteArray demande = liaison->readAll();
        const QByteArray chemin = demande.mid(4, demande.indexOf(' ', 4) - 4);
        Demandes.append(chemin);
        Entetes.append(demande);
        const QByteArray absente("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
        liaison->write(Reponses.value(chemin, absente));
        if (!Reponses.value(chemin, absente).isEmpty()) {
            liaison->disconnectFromHost();
        }
    }
};

} // namespace support
