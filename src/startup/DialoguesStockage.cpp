#include "startup/DialoguesStockage.h"

#include "common/Fichiers.h"
#include "outside/Tente.h"
#include "settings/Enregistrement.h"
#include "startup/Chemins.h"
#include "startup/FichiersChemins.h"
#include "startup/Medecins.h"
#include "startup/messages.h"
#include "upgrade/MajDue.h"

namespace startup {

using application::Contexte;
using common::CheminAffiche;
using common::Joint;

namespace {

constexpr quint8 kSupport = 2;
constexpr quint8 kServeur = 3;

QString NomArbre()
{
    return QStringLiteral("DataScriptelle");
}

/// The folder browser: the path as the system writes it, empty on Cancel.
QString SelRep(Contexte& contexte, const QString& titre)
{
    return CheminAffiche(contexte.Dehors.Boites.Dossier(titre).value_or(QString()));
}

/// The same, again until the answer is one that a path file can hold, or none.
QString SelRepEnregistrable(Contexte& contexte, const QString& titre)
{
    for (;;) {
        const QString reponse = SelRep(contexte, titre);
        if (settings::TientDansEnregistrement(reponse)) {
            return reponse;
        }
        contexte.Dehors.Boites.Information(messages::CheminInenregistrable());
    }
}

void TravailleSurDisque(Contexte& contexte)
{
    contexte.Chemins.CheminTravail = contexte.Chemins.CheminData;
}

void AnnonceTransfertAFaire(outside::Boites& boites)
{
    boites.Information(messages::TransfertAFaire());
    boites.Information(messages::TransfertComment());
    boites.Information(messages::TravailEnAttente());
}

void AnnonceTransfertPasFait(outside::Boites& boites)
{
    boites.Information(messages::TransfertPasFait());
    boites.Information(messages::TravailEnAttente());
}

/// The drive of the removable support, empty when the doctor gives it up.
QString DemandeLecteur(Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    for (;;) {
        const QString lecteur = SelRep(contexte, messages::TitreLecteur());
        if (lecteur.isEmpty()) {
            if (!boites.QuestionInformation(messages::RefaireLecteur())) {
                return {};
            }
        } else if (lecteur.contains(QLatin1Char('\\'))) {
            boites.Information(messages::LecteurSeul());
        } else {
            return lecteur;
        }
    }
}

/// A support without the tree: creates it when the doctor wants so. The run works on the own disk anyway.
void ProposeArbreSurSupport(outside::Boites& boites, const QString& arbre)
{
    if (boites.Question(messages::CreerRepertoire(CheminAffiche(arbre)))) {
        common::CreeDossier(arbre);
        AnnonceTransfertAFaire(boites);
    } else {
        boites.Information(messages::TravailSurDisque());
    }
}

void RegleSupport(Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    boites.Information(messages::SupportExterne());
    const QString lecteur = DemandeLecteur(contexte);
    if (lecteur.isEmpty()) {
        return;
    }
    const QString arbre = Joint(lecteur, NomArbre());
    if (!common::DossierExiste(arbre)) {
        ProposeArbreSurSupport(boites, arbre);
    } else if (!common::DossierContientFichier(arbre)) {
        AnnonceTransfertPasFait(boites);
    } else {
        contexte.Chemins.CheminTravail = arbre;
    }
}

void RetientCheminBase(Contexte& contexte, const QString& chemin)
{
    contexte.Chemins.CheminBase = chemin;
    EcritCheminBase(contexte.Chemins, contexte.Medecins);
}

/// The directory of the server below which the tree is to be created, empty when the doctor gives it up.
QString DemandeParentServeur(Contexte& contexte)
{
    for (;;) {
        const QString parent = SelRepEnregistrable(contexte, messages::TitreCreationServeur());
        if (!parent.isEmpty()) {
            return parent;
        }
        if (!contexte.Dehors.Boites.QuestionInformation(messages::RefaireRepertoire())) {
            return {};
        }
    }
}

void CreeArbreSurServeur(Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    const bool cree = boites.QuestionInformation(messages::CreerMaintenant());
    const QString parent = cree ? DemandeParentServeur(contexte) : QString();
    if (parent.isEmpty()) {
        boites.Information(messages::TravailSurDisque());
        return;
    }
    const QString arbre = Joint(parent, NomArbre());
    common::CreeDossier(arbre);
    AnnonceTransfertAFaire(boites);
    RetientCheminBase(contexte, arbre);
}

void DemandeServeur(Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    boites.Information(messages::EnReseau());
    boites.Information(messages::CliquezAnnuler());
    const QString reponse = SelRepEnregistrable(contexte, messages::TitreServeur());
    if (reponse.isEmpty()) {
        CreeArbreSurServeur(contexte);
    } else if (!reponse.contains(NomArbre())) {
        boites.Information(messages::PasDataScriptelle());
        boites.Information(messages::AttenteNouveauChoix());
    } else {
        contexte.Chemins.CheminTravail = Joint(reponse, QString());
        RetientCheminBase(contexte, contexte.Chemins.CheminTravail);
    }
}

void RegleServeur(Contexte& contexte)
{
    const QString& arbre = contexte.Chemins.CheminBase;
    if (arbre.isEmpty() || !common::DossierExiste(arbre)) {
        DemandeServeur(contexte);
    } else if (!common::DossierContientFichier(arbre)) {
        AnnonceTransfertPasFait(contexte.Dehors.Boites);
    } else {
        contexte.Chemins.CheminTravail = arbre;
    }
}

void RegleChoisi(Contexte& contexte)
{
    if (contexte.Chemins.TypeStockage == kSupport) {
        RegleSupport(contexte);
    } else if (contexte.Chemins.TypeStockage == kServeur) {
        RegleServeur(contexte);
    }
    upgrade::ReprendMaj(contexte, contexte.Chemins.CheminTravail);
}

} // namespace

bool DemandeCheminData(Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    boites.Information(messages::RepertoireUtilisateur());
    QString reponse;
    while ((reponse = SelRepEnregistrable(contexte, messages::TitreRepertoireUtilisateur())).isEmpty()) {
        if (!boites.Question(messages::RenseignementObligatoire())) {
            boites.Stop(messages::ArretSansRenseignement());
            return false;
        }
    }
    const QString velmont = Joint(reponse, QStringLiteral("DataVelmont"));
    contexte.Chemins.CheminData = Joint(velmont, NomArbre());
    common::CreeDossierPrive(contexte.Chemins.CheminData);
    EcritCheminData(contexte.Chemins);
    return true;
}

void RegleCheminTravail(Contexte& contexte)
{
    TravailleSurDisque(contexte);
    if (!outside::Tente(contexte.Dehors.Boites, [&] { RegleChoisi(contexte); })) {
        contexte.Dehors.Boites.Information(messages::TravailSurDisque());
        TravailleSurDisque(contexte);
    }
}

} // namespace startup
