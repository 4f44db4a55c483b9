#include "application/Sauvegarde.h"

#include "application/messages.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "patients/Patient.h"
#include "prescription/Ordonnance.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

#include <QStringList>

namespace application {

namespace {

QString TexteEntree(const prescription::Entree& entree)
{
    return entree.Posologie.isEmpty() ? entree.Titre : entree.Titre + QLatin1Char('\n') + entree.Posologie;
}

/// The entries of a zone in the order of its rows.
QStringList TextesZone(const prescription::LignesZone& lignes, const QList<prescription::Entree>& entrees)
{
    QStringList textes;
    for (const prescription::Ligne& ligne : lignes.Lignes()) {
        textes += TexteEntree(entrees.value(ligne.Indice));
    }
    return textes;
}

} // namespace

QString TexteOrdonnance(const Contexte& contexte)
{
    const prescription::Ordonnance& ordonnance = contexte.Ordonnance;
    const QStringList zone1 = TextesZone(ordonnance.LstChoix1, ordonnance.OrdoZone1);
    const QStringList zone2 = TextesZone(ordonnance.LstChoix2, ordonnance.OrdoZone2);
    if (zone1.isEmpty() && zone2.isEmpty()) {
        return {};
    }
    QStringList blocs = {contexte.Patient.PatientCourant, contexte.Patient.DateOrdo};
    blocs += zone1;
    if (ordonnance.ChkALD == 1 || !zone2.isEmpty()) {
        blocs.insert(2, QStringLiteral("--- Zone 1 ---"));
        blocs += QStringLiteral("--- Zone 2 ---");
        blocs += zone2;
    }
    return blocs.join(QLatin1String("\n\n")) + QLatin1Char('\n');
}

QString SauveOrdonnance(const Contexte& contexte)
{
    const QString texte = TexteOrdonnance(contexte);
    const startup::Chemins& chemins = contexte.Chemins;
    const QString& dossier = chemins.CheminTravail.isEmpty() ? chemins.CheminData : chemins.CheminTravail;
    if (texte.isEmpty() || dossier.isEmpty()) {
        return {};
    }
    const QString fichier = common::Joint(dossier, QStringLiteral("Ordonnance sauvegardee.txt"));
    common::EcritFichier(fichier, QByteArrayLiteral("\xEF\xBB\xBF") + texte.toUtf8());
    return fichier;
}

QString ConserveOrdonnance(const Contexte& contexte)
{
    try {
        const QString fichier = SauveOrdonnance(contexte);
        return fichier.isEmpty() ? QString() : messages::OrdonnanceSauvee(common::CheminAffiche(fichier));
    } catch (const common::Erreur& erreur) {
        return messages::OrdonnanceNonSauvee(erreur.Phrase());
    }
}

QString FermeSurErreur(Contexte& contexte, const QString& phrase, const QString& lieu)
{
    const QString conservation = ConserveOrdonnance(contexte);
    contexte.Bases.FermeMedoc();
    contexte.Bases.FermeOrdo();
    return messages::ArretSurErreur(phrase, common::CheminAffiche(lieu)) + conservation;
}

} // namespace application
