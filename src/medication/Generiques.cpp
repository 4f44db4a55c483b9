#include "medication/Generiques.h"

#include "drugbank/Banque.h"
#include "medication/Choix.h"
#include "medication/messages.h"

namespace medication {

namespace {

constexpr qsizetype kPrixEtFin = 11; // the price and its tail, as long as the price fits

} // namespace

bool RechercheGeneriques(application::Contexte& contexte)
{
    Choix& choix = contexte.Choix;
    choix.LstGen.clear();
    if (const std::shared_ptr<drugbank::AccesBanque> acces = contexte.Banque.Acces) {
        choix.LstGen = acces->Generiques(choix.InfoPack.value(2).toInt());
    }
    return !choix.LstGen.isEmpty();
}

QString SansGenerique(const application::Contexte& contexte)
{
    return drugbank::BanqueRepond(contexte.Banque) ? messages::SansGenerique()
                                                   : messages::GeneriquesNonCherches();
}

QString TitreGeneriques(const Choix& choix, const QString& nom)
{
    return QStringLiteral("   Génériques de ") + nom + QStringLiteral("   (Prix :  ") +
           choix.InfoPack.value(3) + QStringLiteral(" €)");
}

QString NomDuGenerique(const QString& rang)
{
    return rang.chopped(qMin(kPrixEtFin, rang.size())).trimmed() + QString(kBlancsF4, u' ');
}

} // namespace medication
