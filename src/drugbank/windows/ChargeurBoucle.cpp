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
constexpr auto kRaison = "raison"; // of an answer that was cut short

QNetworkRequest Requete(const QUrl& adresse)
{
    QNetworkRequest requete(adresse);
    requete.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    requete.setMaximumRedirectsAllowed(kRedirections);
    for (const auto partage :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute}) {
        requete.setAttribute(partage, QNetworkRequest::Manual);
    }
    return requete;
}

void Interrompt(QNetworkReply* reponse, const QString& raison)
{
    reponse->setProperty(kRaison, raison);
    reponse->abort();
}

QByteArray JeuDeLaReponse(const QNetworkReply& reponse)
{
    static const QRegularExpression jeu(QStringLiteral("charset\\s*=\\s*[\"']?([\\w.:-]+)"),
                                        QRegularExpression::CaseInsensitiveOption);
    return jeu.match(reponse.header(QNetworkRequest::ContentTypeHeader).toString()).captured(1).toLatin1();
}

Recu RecuDe(QNetworkReply& reponse)
{
    if (const QString raison = reponse.property(kRaison).toString(); !raison.isEmpty()) {
        return {{}, {}, raison};
    }
    if (reponse.error() == QNetworkReply::ContentNotFoundError) {
        return {{}, {}, messages::DocumentAbsent(reponse.url().fileName())};
    }
    if (reponse.error() != QNetworkReply::NoError) {
        return {{}, {}, messages::DocumentSansReponse(reponse.url().authority())};
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
    reponses_.insert(reponse);
    Surveille(reponse, maximum);
    connect(reponse, &QNetworkReply::finished, this, [this, reponse, suite = std::move(suite)] {
        reponses_.remove(reponse);
        reponse->deleteLater();
        suite(RecuDe(*reponse), reponse->url());
    });
}

void ChargeurBoucle::Surveille(QNetworkReply* reponse, qint64 maximum)
{
    reponse->setReadBufferSize(maximum + 1);
    connect(reponse, &QNetworkReply::readyRead, this, [reponse, maximum] {
        if (reponse->bytesAvailable() > maximum) {
            Interrompt(reponse, messages::DocumentTropGrand(reponse->url().fileName()));
        }
    });
    connect(reponse, &QNetworkReply::redirected, this,
            [this, reponse](const QUrl& cible) { Redirige(reponse, cible); });
    QTimer::singleShot(delai_, reponse, [reponse] {
        Interrompt(reponse, messages::DocumentTropLent(reponse->url().authority()));
    });
}

void ChargeurBoucle::Redirige(QNetworkReply* reponse, const QUrl& cible)
{
    if (SortDeLAdresse(cible) == Sort::Boucle) {
        Q_EMIT reponse->redirectAllowed();
    } else {
        Interrompt(reponse, messages::DocumentRenvoye(cible.host()));
    }
}

void ChargeurBoucle::Abandonne()
{
    for (QNetworkReply* reponse : std::exchange(reponses_, {})) {
        reponse->disconnect(this);
        reponse->abort();
        reponse->deleteLater();
    }
}

} // namespace drugbank
