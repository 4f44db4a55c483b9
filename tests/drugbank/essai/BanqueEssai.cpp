#include "essai/BanqueEssai.h"

#include "essai/Emplacement.h"

#include <QCoreApplication>
#include <cstring>

namespace essai {

using drugbank::Entier;
using drugbank::Poignee;

namespace {

constexpr Poignee kSession = 77;
constexpr Entier kEnCours = 14;

} // namespace

BanqueEssai::BanqueEssai(const QJsonObject& description)
    : Poignees(kSession), Reponses(description), description_(description),
      reponses_(description.value(QLatin1String("reponses")).toObject()),
      journal_(description.value(QLatin1String("journal")).toString())
{
    Poignees = essai::Poignees(kSession + journal_.Lignes()); // no number of an earlier image comes back
}

BanqueEssai& BanqueEssai::La()
{
    static BanqueEssai banque(LitDescription());
    return banque;
}

void BanqueEssai::LaisseEvenements(const char* fonction) const
{
    if (description_.value(QLatin1String("evenements")) == QLatin1String(fonction)) {
        QCoreApplication::processEvents();
    }
}

void BanqueEssai::Note(const char* fonction, const QJsonArray& arguments)
{
    journal_.Note(fonction, arguments);
    LaisseEvenements(fonction);
}

Poignee BanqueEssai::Donne(const char* fonction, const QJsonArray& arguments, const QJsonValue& contenu)
{
    LaisseEvenements(fonction);
    const Poignee poignee = Poignees.Ouvre(contenu);
    journal_.Note(fonction, arguments, poignee);
    return poignee;
}

QJsonValue BanqueEssai::Dite(const QJsonObject& table, const QByteArray& cle)
{
    const QJsonValue dite = table.value(QString::fromLatin1(cle));
    return dite.isUndefined() ? table.value(QLatin1String("*")) : dite;
}

void BanqueEssai::Libere(const char* fonction, Poignee poignee)
{
    const bool sortie = Poignees.Libere(poignee);
    journal_.Note(fonction, {poignee}, 0, !sortie);
}

void BanqueEssai::Commence(Poignee* session)
{
    *session = kSession;
    restantes_ = Statut("attentes");
}

Entier BanqueEssai::Etape()
{
    if (restantes_ > 0) {
        --restantes_;
        return kEnCours;
    }
    return Statut("retourDemarrage");
}

std::int64_t BanqueEssai::Expiration() const
{
    const QJsonValue expiration = description_.value(QLatin1String("expiration"));
    return expiration.isDouble() ? static_cast<std::int64_t>(expiration.toDouble()) : 0;
}

Entier BanqueEssai::Longueur(drugbank::TexteBanque texte) const
{
    const QJsonValue longueur = reponses_.value(QLatin1String("longueur"));
    return longueur.isDouble() ? longueur.toInt() : static_cast<Entier>(std::strlen(texte));
}

QByteArray BanqueEssai::Version() const
{
    return description_.value(QLatin1String("version")).toString().toLatin1();
}

Entier BanqueEssai::Statut(const char* champ) const
{
    return description_.value(QLatin1String(champ)).toInt();
}

} // namespace essai
