#pragma once

#include "drugbank/PageDocument.h"

#include <QHash>
#include <QNetworkAccessManager>
#include <functional>

class QNetworkReply;
class QNetworkRequest;

namespace drugbank {

/// Asks servers of this computer for documents, by the loopback interface alone: no proxy, no cookie, and no
/// redirection that leads elsewhere. Never waits.
class ChargeurBoucle : public QObject
{
    Q_OBJECT

public:
    /// Takes what was received and the address that gave it in the end.
    using Suite = std::function<void(const Recu& recu, const QUrl& adresse)>;

    /// `delai` in milliseconds, for a whole answer.
    explicit ChargeurBoucle(int delai, QObject* parent = nullptr);
    ~ChargeurBoucle() override;

    /// `adresse` is one of the loopback interface. `suite` is called later, once, unless all is given up.
    void Demande(const QUrl& adresse, qint64 maximum, Suite suite);
    /// Gives up whatever is still asked for.
    void Abandonne();

private:
    void Surveille(QNetworkReply* reponse, qint64 maximum);
    void Redirige(QNetworkReply* reponse, const QUrl& cible);
    /// Ends an answer, complete or cut short, and hands on what it came to. Once for each.
    void Conclut(QNetworkReply* reponse, const Recu& recu);

    int delai_;
    QNetworkAccessManager reseau_;
    QHash<QNetworkReply*, Suite> suites_; ///< of the answers still to come
};

} // namespace drugbank
