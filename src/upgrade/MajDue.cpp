#include "upgrade/MajDue.h"

#include "application/Relance.h"
#include "common/Fichiers.h"
#include "outside/Boites.h"
#include "outside/Plateau.h"
#include "outside/Tente.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"
#include "upgrade/JournalMaj.h"
#include "upgrade/MajAbandonnee.h"
#include "upgrade/messages.h"

namespace upgrade {

using application::Contexte;
using common::FichierExiste;
using common::Joint;

namespace {

QString Declencheur(const startup::Chemins& chemins)
{
    return Joint(chemins.CheminData, QStringLiteral("Copie de Medoc.mdb"));
}

void PoseModeles(const startup::Chemins& chemins)
{
    const QString modeles = Joint(chemins.CheminInstallation, QStringLiteral("BasesInstal"));
    for (const QString& nom : {QStringLiteral("Copie de Medoc.mdb"), QStringLiteral("Copie de Ordo.mdb")}) {
        common::CopieFichier(Joint(modeles, nom), Joint(chemins.CheminData, nom));
    }
}

/// Lays out the templates. Nothing of the data has changed when one of them is missing.
void ExigeModeles(const startup::Chemins& chemins)
{
    try {
        PoseModeles(chemins);
    } catch (const common::Erreur& erreur) {
        throw MajAbandonnee(messages::Abandonnee(erreur.Phrase()), erreur.Lieu());
    }
}

/// The tree to be upgraded, empty when the doctor names none.
QString DemandeRepertoireMaJ(outside::Boites& boites)
{
    boites.Information(messages::MajDue());
    for (;;) {
        const QString RepertoireMaJ = boites.Dossier(messages::TitreRepertoireMaJ()).value_or(QString());
        if (RepertoireMaJ.contains(QLatin1String("DataScriptelle"))) {
            return RepertoireMaJ;
        }
        if (!boites.Question(messages::RefaireEssai())) {
            boites.Information(messages::ProcedureInterrompue());
            return {};
        }
    }
}

} // namespace

void ReprendMaj(const Contexte& contexte, const QString& arbre, Suivi suivi)
{
    JournalMaj(arbre, contexte.Chemins.CheminData, suivi).Reprend();
}

SuiteMaj FaitMajDue(Contexte& contexte, const EcransMaj& ecrans)
{
    if (!FichierExiste(Declencheur(contexte.Chemins))) {
        return SuiteMaj::PasDue;
    }
    try {
        ExigeModeles(contexte.Chemins);
        const QString RepertoireMaJ = DemandeRepertoireMaJ(contexte.Dehors.Boites);
        if (RepertoireMaJ.isEmpty()) {
            return SuiteMaj::Renonce;
        }
        MajBases(contexte, ecrans, RepertoireMaJ);
        return SuiteMaj::Faite;
    } catch (const MajAbandonnee& cause) {
        outside::DitPanne(contexte.Dehors.Boites, cause);
        return SuiteMaj::Abandonnee;
    }
}

void Redemarre(Contexte& contexte)
{
    contexte.Bases.FermeMedoc();
    contexte.Bases.FermeOrdo();
    contexte.Dehors.Plateau.Retire();
    contexte.Dehors.Boites.Information(messages::Redemarrage());
    application::Relance(contexte);
}

} // namespace upgrade
