#include "application/Valeurs.h"

#include "application/Etat.h"
#include "certificates/Bandeaux.h"
#include "common/Nombres.h"
#include "startup/Demarrage.h"

#include <QHash>
#include <functional>

namespace application {

namespace {

using Lecture = std::function<QVariant(const Contexte&)>;
using Registre = QHash<QString, Lecture>;

template <typename Champ> QVariant EnVariant(const Champ& champ)
{
    if constexpr (std::is_integral_v<Champ>) {
        return static_cast<int>(champ);
    } else if constexpr (std::is_same_v<Champ, float>) {
        return common::TexteSimple(champ).toDouble();
    } else if constexpr (std::is_floating_point_v<Champ>) {
        return static_cast<double>(champ);
    } else {
        return QVariant(champ);
    }
}

/// One variable under the name of its field.
#define VARIABLE(structure, champ)                                                                           \
    registre.insert(QStringLiteral(#champ),                                                                  \
                    [](const Contexte& contexte) { return EnVariant(contexte.structure.champ); })

void AjouteChemins(Registre& registre)
{
    registre.insert(QStringLiteral("Version"), [](const Contexte&) { return startup::Version(); });
    VARIABLE(Chemins, CheminProgramme);
    VARIABLE(Chemins, CheminInstallation);
    VARIABLE(Chemins, CheminData);
    VARIABLE(Chemins, CheminBase);
    VARIABLE(Chemins, CheminTravail);
    VARIABLE(Chemins, CheminMedecin);
    VARIABLE(Chemins, TypeStockage);
    VARIABLE(Chemins, IndexStockage);
}

void AjouteMedecins(Registre& registre)
{
    VARIABLE(Medecins, NbMedecins);
    VARIABLE(Medecins, NumMedecin);
    VARIABLE(Medecins, NumMedecinDefaut);
    VARIABLE(Medecins, IndexMedecin);
    VARIABLE(Medecins, NomMedecinSignature);
}

void AjoutePatient(Registre& registre)
{
    VARIABLE(Patient, PatientCourant);
    VARIABLE(Patient, NomSeul);
    VARIABLE(Patient, DateNaissance);
    VARIABLE(Patient, AgePatient);
    VARIABLE(Patient, PoidsPatient);
    VARIABLE(Patient, PrecautionsPatient);
    VARIABLE(Patient, AdressePatient);
    VARIABLE(Patient, DateOrdo);
    VARIABLE(Patient, MessagePrecautions);
    VARIABLE(Patient, AgeSaisi);
    VARIABLE(Patient, ModePatient);
    VARIABLE(Patient, OuvreMedocApres);
}

QVariant EnListe(const QList<prescription::Entree>& zone)
{
    QVariantList liste;
    for (const prescription::Entree& entree : zone) {
        liste.append(QVariantMap{{QStringLiteral("Titre"), entree.Titre},
                                 {QStringLiteral("Posologie"), entree.Posologie}});
    }
    return liste;
}

void AjouteOrdonnance(Registre& registre)
{
    registre.insert(QStringLiteral("OrdoZone1"),
                    [](const Contexte& contexte) { return EnListe(contexte.Ordonnance.OrdoZone1); });
    registre.insert(QStringLiteral("OrdoZone2"),
                    [](const Contexte& contexte) { return EnListe(contexte.Ordonnance.OrdoZone2); });
    registre.insert(QStringLiteral("NbZone1"),
                    [](const Contexte& contexte) { return EnVariant(contexte.Ordonnance.OrdoZone1.size()); });
    registre.insert(QStringLiteral("NbZone2"),
                    [](const Contexte& contexte) { return EnVariant(contexte.Ordonnance.OrdoZone2.size()); });
    VARIABLE(Ordonnance, NbMedZone1);
    VARIABLE(Ordonnance, NbMedZone2);
    VARIABLE(Ordonnance, ChkALD);
    VARIABLE(Ordonnance, ChkDup);
    VARIABLE(Ordonnance, ChkTri);
    VARIABLE(Ordonnance, ChkCiv);
    VARIABLE(Ordonnance, OrdoMemorisee);
    VARIABLE(Ordonnance, TitreMemo);
    VARIABLE(Ordonnance, LigneJournal);
    VARIABLE(Apercu, ModeApercu);
    VARIABLE(Apercu, DispositionFaite);
    VARIABLE(Impression, EtatImprimante);
    VARIABLE(Impression, NbCopies);
}

void AjouteOptions(Registre& registre)
{
    VARIABLE(Reglages.Options, LanceDemarrage);
    VARIABLE(Reglages.Options, AffichePoids);
    VARIABLE(Reglages.Options, AfficheAge);
    VARIABLE(Reglages.Options, SouligneNom);
    VARIABLE(Reglages.Options, ReduitLancement);
    VARIABLE(Reglages.Options, MinimiseImpression);
    VARIABLE(Reglages.Options, IconeHorloge);
    VARIABLE(Reglages.Options, SautsPrescription);
    VARIABLE(Reglages.Options, PositionLogo);
    VARIABLE(Reglages.Options, SautTitrePoso);
    VARIABLE(Reglages.Options, BarreMenu);
    VARIABLE(Reglages.Options, ModeEntete);
    VARIABLE(Reglages.Options, AfficheRegle);
    VARIABLE(Reglages.Options, Imprimante);
    VARIABLE(Reglages.Options, IncrementeMedicaments);
    VARIABLE(Reglages.Options, TotalMedicaments);
    VARIABLE(Reglages.Options, FichierLogo);
    VARIABLE(Reglages.Options, LogoActif);
    VARIABLE(Reglages.Options, LogoHauteur);
    VARIABLE(Reglages.Options, LogoLargeur);
    VARIABLE(Reglages.Options, LogoX);
    VARIABLE(Reglages.Options, LogoY);
    VARIABLE(Reglages.Options, SautPersonnalise);
    VARIABLE(Reglages.Options, ReliefMedUtilises);
    VARIABLE(Reglages.Options, TenirJournal);
    VARIABLE(Reglages.Options, AfficheDDN);
    VARIABLE(Reglages.Options, ImprimeDate);
    VARIABLE(Reglages.Options, EtatChkMono);
    VARIABLE(Reglages.Options, FormatA4);
    VARIABLE(Reglages.EnCours, BaseInitiale);
    VARIABLE(Reglages.EnCours, RatioLogo);
    VARIABLE(Reglages.EnCours, SaisieLogo);
}

void AjouteMarges(Registre& registre)
{
    VARIABLE(Reglages.Marges, MargeGaucheEntete);
    VARIABLE(Reglages.Marges, MargeHauteEntete);
    VARIABLE(Reglages.Marges, MargeBasEntete);
    VARIABLE(Reglages.Marges, MargeGaucheOrdo);
    VARIABLE(Reglages.Marges, MargeHauteOrdo);
    VARIABLE(Reglages.Marges, LongueurLigne);
    VARIABLE(Reglages.Marges, MargeHautePatient);
    VARIABLE(Reglages.Marges, MargeGauchePatient);
    VARIABLE(Reglages.Marges, HauteurSaut);
    VARIABLE(Reglages.Marges, MargeHauteDate);
    VARIABLE(Reglages.Marges, MargeGaucheDate);
    VARIABLE(Reglages.Marges, MargeHauteDDN);
    VARIABLE(Reglages.Marges, MargeGaucheDDN);
}

void AjouteDupli(Registre& registre)
{
    VARIABLE(Reglages.Dupli, DupliPolice);
    VARIABLE(Reglages.Dupli, DupliTaille);
    VARIABLE(Reglages.Dupli, DupliItalique);
    VARIABLE(Reglages.Dupli, DupliGras);
    VARIABLE(Reglages.Dupli, DupliCouleur);
    VARIABLE(Reglages.Dupli, DupliX);
    VARIABLE(Reglages.Dupli, DupliY);
    VARIABLE(Reglages.Dupli, DupliActif);
    VARIABLE(Reglages.Dupli, DupliTexte);
}

/// The five variables of a font of the look: "Police", "Taille", ... and the name of what it is for.
void AjoutePolice(Registre& registre, const QString& role, page::Police settings::Look::*place)
{
    const auto ajoute = [&](const QString& debut, auto champ) {
        registre.insert(debut + role, [place, champ](const Contexte& contexte) {
            return EnVariant(contexte.Reglages.Look.*place.*champ);
        });
    };
    ajoute(QStringLiteral("Police"), &page::Police::Nom);
    ajoute(QStringLiteral("Taille"), &page::Police::Taille);
    ajoute(QStringLiteral("Gras"), &page::Police::Gras);
    ajoute(QStringLiteral("Italique"), &page::Police::Italique);
    ajoute(QStringLiteral("Souligne"), &page::Police::Souligne);
}

void AjouteLook(Registre& registre)
{
    AjoutePolice(registre, QStringLiteral("Titre"), &settings::Look::Titre);
    AjoutePolice(registre, QStringLiteral("Poso"), &settings::Look::Poso);
    AjoutePolice(registre, QStringLiteral("Certif"), &settings::Look::Certif);
    VARIABLE(Reglages, ConfOrdoActive);
    VARIABLE(Reglages, TxtCourant);
    VARIABLE(Reglages.Look, CouleurEntete);
    VARIABLE(Reglages.Look, NomSignature);
    registre.insert(QStringLiteral("EspacesLigne"), [](const Contexte& contexte) {
        QVariantList espaces;
        for (const qint16 ligne : contexte.Reglages.SaisieEntete.EspacesLigne) {
            espaces.append(static_cast<int>(ligne));
        }
        return QVariant(espaces);
    });
    VARIABLE(Reglages.SaisieEntete, LigneCourante);
    VARIABLE(Reglages.SaisieEntete, TexteAvantCurseur);
}

void AjouteCertificat(Registre& registre)
{
    VARIABLE(Certificat, DecalageCertif);
    VARIABLE(Certificat, CertifALD);
    VARIABLE(Certificat, ChargeCertif);
    VARIABLE(Certificat, IndexCertif);
    VARIABLE(Certificat, IdentiteCertif);
    registre.insert(QStringLiteral("BandeauALD1"),
                    [](const Contexte&) { return certificates::BandeauALD1(); });
    registre.insert(QStringLiteral("BandeauALD2"),
                    [](const Contexte&) { return certificates::BandeauALD2(); });
}

void AjouteBanque(Registre& registre)
{
    VARIABLE(Banque, TypeBase);
    VARIABLE(Banque, NiveauInteraction);
    VARIABLE(Banque, ProduitBanque);
    VARIABLE(Banque, FiltreBanque);
    VARIABLE(Banque, SessionBanque);
    VARIABLE(Banque, DateExpirationBase);
    VARIABLE(Banque, ModuleAide);
    VARIABLE(Banque, CheminBanque);
    VARIABLE(Banque, VersionBanque);
    VARIABLE(Banque, MessageBanque);
    VARIABLE(Banque, RetourInitBanque);
    VARIABLE(Banque, ChargementBanque);
    VARIABLE(Banque, BanqueInitialisee);
    VARIABLE(Banque, RapportInteractions);
}

void AjouteChoix(Registre& registre)
{
    VARIABLE(Choix, NoeudChoisi);
    VARIABLE(Choix, ArbreChoisi);
    VARIABLE(Choix, OrigineEdition);
    VARIABLE(Choix, ListeSource);
    VARIABLE(Choix, IndexEdition1);
    VARIABLE(Choix, IndexEdition2);
    VARIABLE(Choix, IdentifiantRepris);
    VARIABLE(Choix, InfoPack);
    VARIABLE(Choix, AdresseWB);
    VARIABLE(Choix, BaseChangee);
    VARIABLE(Choix, DernierCboP);
    VARIABLE(Choix, TexteQuantite);
}

#undef VARIABLE

Registre Construit()
{
    Registre registre;
    AjouteChemins(registre);
    AjouteMedecins(registre);
    AjoutePatient(registre);
    AjouteOrdonnance(registre);
    AjouteOptions(registre);
    AjouteMarges(registre);
    AjouteDupli(registre);
    AjouteLook(registre);
    AjouteCertificat(registre);
    AjouteBanque(registre);
    AjouteChoix(registre);
    return registre;
}

} // namespace

QVariant Valeur(const Contexte& contexte, const QString& nom)
{
    static const Registre registre = Construit();
    const auto lecture = registre.constFind(nom);
    return lecture == registre.constEnd() ? QVariant() : (*lecture)(contexte);
}

} // namespace application
