#include "drugbank/windows/ChargeurBoucle.h"

#include "drugbank/AdresseDocument.h"
#include "drugbank/messagesDocument.h"

#include <QNetworkProxy>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QTimer>

namespace drugbank {

namespace {

constexpr int kRedirections = 5;
constexpr int kReussite = 2;         // the hundreds of the status of an answer that holds what was asked for
constexpr auto kRenvois = "renvois"; // how often an answer was redirected

QNetworkRequest Requete(const QUrl& adresse)
{
    QNetworkRequest requete(adresse);
    requete.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    for (const auto partage :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute}) {
        requete.setAttribute(partage, QNetworkRequest::Manual);
    }
    return requete;
}

QByteArray JeuDeLaReponse(const QNetworkReply& reponse)
{
    static const QRegularExpression jeu(QStringLiteral("charset\\s*=\\s*[\"']?([\\w.:-]+)"),
                                        QRegularExpression::CaseInsensitiveOption);
    return jeu.match(reponse.header(QNetworkRequest::ContentTypeHeader).toString()).captured(1).toLatin1();
}

Recu Rien(const QString& manque)
{
    return {{}, {}, manque};
}

Recu RecuDe(QNetworkReply& reponse)
{
    if (reponse.error() == QNetworkReply::ContentNotFoundError) {
        return Rien(messages::DocumentAbsent(reponse.url().fileName()));
    }
    const int etat = reponse.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reponse.error() != QNetworkReply::NoError || etat / 100 != kReussite) {
        return Rien(messages::DocumentSansReponse(reponse.url().authority()));
    }
    return {reponse.readAll(), JeuDeLaReponse(reponse), {}};
}

} // namespace

ChargeurBoucle::ChargeurBoucle(int delai, QObject* parent) : QObject(parent), delai_(delai)
{
    reseau_.setProxy(QNetworkProxy::NoProxy);
}

ChargeurBoucle::~ChargeurBoucle()
{
    Abandonne();
}

void ChargeurBoucle::Demande(const QUrl& adresse, qint64 maximum, Suite suite)
{
    QNetworkReply* reponse = reseau_.get(Requete(adresse));
    suites_.insert(reponse, std::move(suite));
    Surveille(reponse, maximum);
    connect(reponse, &QNetworkReply::finished, this, [this, reponse] { Conclut(reponse, RecuDe(*reponse)); });
}

void ChargeurBoucle::Surveille(QNetworkReply* reponse, qint64 maximum)
{
    reponse->setReadBufferSize(maximum + 1);
    connect(reponse, &QNetworkReply::readyRead, this, [this, reponse, maximum] {
        if (reponse->bytesAvailable() > maximum) {
            Conclut(reponse, Rien(messages::DocumentTropGrand(reponse->url().fileName())));
        }
    });
    connect(reponse, &QNetworkReply::redirected, this,
            [this, reponse](const QUrl& cible) { Redirige(reponse, cible); });
    QTimer::singleShot(delai_, reponse, [this, reponse] {
        Conclut(reponse, Rien(messages::DocumentTropLent(reponse->url().authority())));
    });
}

void ChargeurBoucle::Redirige(QNetworkReply* reponse, const QUrl& cible)
{
    const int renvois = reponse->property(kRenvois).toInt() + 1;
    reponse->setProperty(kRenvois, renvois);
    if (SortDeLAdresse(cible) != Sort::Boucle) {
        Conclut(reponse, Rien(messages::DocumentRenvoye(cible.host())));
    } else if (renvois > kRedirections) {
        Conclut(reponse, Rien(messages::DocumentSansReponse(reponse->url().authority())));
    } else {
        Q_EMIT reponse->redirectAllowed();
    }
}

void ChargeurBoucle::Conclut(QNetworkReply* reponse, const Recu& recu)
{
    // The answer to an end by `abort` may never come while a redirection is under way.
    if (const Suite suite = suites_.take(reponse)) {
        reponse->disconnect(this);
        reponse->abort();
        reponse->deleteLater();
        suite(recu, reponse->url());
    }
}

void ChargeurBoucle::Abandonne()
{
    const auto suites = std::exchange(suites_, {});
    for (auto reste = suites.keyBegin(); reste != suites.keyEnd(); ++reste) {
        (*reste)->disconnect(this);
        (*reste)->abort();
        (*reste)->deleteLater();
    }
}

} // namespace drugbank
