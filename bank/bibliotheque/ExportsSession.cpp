// The start and the end of a session, and the copying of texts.
#include "bank/bibliotheque/Bibliotheque.h"
#include "bank/bibliotheque/Exports.h"
#include "bank/bibliotheque/Statut.h"
#include "bank/bibliotheque/Transcription.h"

#include <QTimeZone>

#include <cstring>

using namespace banque::bibliotheque;

namespace {

constexpr std::size_t kTexteMax = 1U << 30;

std::size_t Longueur(const char* texte)
{
    return texte ? strnlen(texte, kTexteMax) : 0;
}

/// The day of a ready session, else that of the file, which is opened for it alone.
QDate ExpirationDe(const Bibliotheque& bibliotheque)
{
    const Connexion connexion(bibliotheque.Fichier());
    ExigeUneBanque(connexion.Base());
    return Expiration(connexion.Base());
}

QDate DateExpiration(const Bibliotheque& bibliotheque, drugbank::Poignee session)
{
    const Session* const prete = bibliotheque.Prete(session);
    return prete ? QDate::fromString(prete->Lu().Information(QStringLiteral("expiration")), Qt::ISODate)
                 : ExpirationDe(bibliotheque);
}

/// The version with the day of the data, when a session tells it.
QByteArray Version(Session* session)
{
    QString version = QStringLiteral("BDP " SCRIPTELLE_VERSION);
    if (session && session->Statut() == kPrete) {
        const QDate donnees =
            QDate::fromString(session->Lu().Information(QStringLiteral("date_donnees")), Qt::ISODate);
        version += QStringLiteral(", données du ") + donnees.toString(QStringLiteral("dd/MM/yyyy"));
    }
    return EnWindows1252(version);
}

} // namespace

namespace drugbank {

Entier VidalAPI_asyncInit(Poignee* session, Entier)
{
    Entier statut = kEchec;
    Demande<void>([&](Bibliotheque& bibliotheque) { statut = bibliotheque.Demarre(session); });
    return statut;
}

Entier VidalAPI_init(Poignee* session, Entier)
{
    Entier statut = kEchec;
    Demande<void>([&](Bibliotheque& bibliotheque) {
        statut = bibliotheque.Demarre(session);
        if (statut == kDemarrage) {
            statut = bibliotheque.Presente()->Attends();
        }
    });
    return statut;
}

Entier VidalAPI_asyncStartResult(Poignee session, Entier)
{
    Entier statut = kEchec;
    Demande<void>([&](Bibliotheque& bibliotheque) {
        Session* const donnee = bibliotheque.Donne(session);
        statut = donnee ? donnee->Statut() : kDemandeVide;
    });
    return statut;
}

/// The program takes this answer for that of the start: a start that failed fails here too.
Entier VidalAPI_getVersion(char* tampon, Entier longueur)
{
    if (!tampon || longueur <= 0) {
        return kDemandeVide;
    }
    *tampon = '\0';
    Entier statut = kEchec;
    Demande<void>([&](Bibliotheque& bibliotheque) {
        Session* const session = bibliotheque.Presente();
        const QByteArray version = Version(session).left(longueur - 1);
        std::memcpy(tampon, version.constData(), static_cast<std::size_t>(version.size()) + 1);
        statut = session ? session->Statut() : kPrete;
    });
    return statut;
}

void VidalAPI_release(Poignee session)
{
    Demande<void>([&](Bibliotheque& bibliotheque) { bibliotheque.Libere(session); });
}

std::int64_t DatabaseInfoService_getExpiryDate(Poignee session)
{
    return Demande<std::int64_t>([&](const Bibliotheque& bibliotheque) -> std::int64_t {
        const QDate date = DateExpiration(bibliotheque, session);
        return date.isValid() ? date.startOfDay(QTimeZone::utc()).toSecsSinceEpoch() : 0;
    });
}

Entier StringLength(TexteBanque texte)
{
    return static_cast<Entier>(Longueur(texte));
}

/// At most that many characters; the terminator when there is room for it.
void CopyStringN2(char* tampon, TexteBanque texte, Entier longueur)
{
    if (tampon && texte && longueur > 0) {
        const auto place = static_cast<std::size_t>(longueur);
        std::memcpy(tampon, texte, std::min(place, strnlen(texte, place) + 1));
    }
}

void CopyString(char* tampon, TexteBanque texte)
{
    if (tampon) {
        std::memcpy(tampon, texte ? texte : "", Longueur(texte));
        tampon[Longueur(texte)] = '\0';
    }
}

void BanquePublique_choisitFichier(const char* chemin)
{
    Demande<void>(
        [&](Bibliotheque& bibliotheque) { bibliotheque.ChoisitFichier(QString::fromUtf8(chemin)); });
}

} // namespace drugbank
