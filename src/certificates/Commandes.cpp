#include "certificates/Commandes.h"

#include "certificates/Bandeaux.h"
#include "certificates/Decalage.h"
#include "certificates/Modeles.h"
#include "certificates/Texte.h"
#include "certificates/messages.h"
#include "common/Fichiers.h"
#include "common/Nombres.h"
#include "outside/Boites.h"
#include "prescription/Apercu.h"
#include "prescription/Editeur.h"
#include "settings/FichiersReglages.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

namespace certificates {

namespace {

const QString kFinDeLigne = QStringLiteral("\r\n");

/// Without blanks at the end, and with one line end there; a text that comes back from the page has its own.
QString PourLaPage(QString texte)
{
    while (texte.endsWith(u' ')) {
        texte.chop(1);
    }
    return texte.endsWith(kFinDeLigne) ? texte : texte + kFinDeLigne;
}

} // namespace

QString CocheALD(Certificat& certificat, bool coche)
{
    certificat.CertifALD = coche ? 1 : 0;
    certificat.DecalageCertif = 0;
    return coche ? BandeauALD1() + kFinDeLigne.repeated(5) + BandeauALD2() + kFinDeLigne : QString();
}

QString DecaleTexteADroite(application::Contexte& contexte, const QString& texte)
{
    EcritTmp(contexte.Chemins.CheminTravail, texte);
    contexte.Certificat.DecalageCertif += kPasDeDecalage;
    return DecaleADroite(texte);
}

std::optional<QString> DecaleTexteAGauche(application::Contexte& contexte, const QString& texte)
{
    EcritTmp(contexte.Chemins.CheminTravail, texte);
    if (!PeutDecalerAGauche(texte)) {
        return {};
    }
    contexte.Certificat.DecalageCertif -= kPasDeDecalage;
    return DecaleAGauche(texte);
}

bool EnregistreSous(application::Contexte& contexte, const QString& texte)
{
    const QString& travail = contexte.Chemins.CheminTravail;
    const QString dossier = CheminCertificats(travail);
    common::CreeDossier(dossier);
    outside::Boites& boites = contexte.Dehors.Boites;
    const auto chemin = boites.Enregistre({.Titre = messages::TitreEnregistrement(),
                                           .Filtre = QStringLiteral("*.txt|*.txt"),
                                           .Depart = dossier});
    if (!chemin) {
        return false;
    }
    const NomChoisi choix = LitNomChoisi(travail, *chemin);
    if (!choix.Refus.isEmpty()) {
        boites.Exclamation(choix.Refus);
        return false;
    }
    EcritModele(travail, choix.Nom, texte, contexte.Certificat);
    return true;
}

bool SupprimeModele(application::Contexte& contexte, const QString& nom)
{
    if (nom.isEmpty()) {
        contexte.Dehors.Boites.Information(messages::SelectionnezLeModele());
        return false;
    }
    if (!contexte.Dehors.Boites.Question(messages::Supprimer(nom), outside::Bouton::Non)) {
        return false;
    }
    EffaceModele(contexte.Chemins.CheminTravail, nom);
    return true;
}

bool ChoisitPolice(application::Contexte& contexte)
{
    page::Police& courante = contexte.Reglages.Look.Certif;
    const auto choisie = contexte.Dehors.Boites.ChoisitPolice(courante);
    if (!choisie) {
        return false;
    }
    const QString& medecin = contexte.Chemins.CheminMedecin;
    if (medecin.isEmpty()) {
        contexte.Dehors.Boites.Information(messages::PoliceSansMedecin());
    } else {
        settings::EcritPoliceCertificat(*choisie, contexte.Bases.Ordo(medecin));
    }
    courante = *choisie;
    contexte.Certificat.TxtCert = *choisie;
    return true;
}

QString LibellePolice(const page::Police& police)
{
    const auto marque = [](bool posee, QChar lettre) { return posee ? QString(lettre) : QString(); };
    return police.Nom + QStringLiteral("  (") + common::TexteSimple(police.Taille).replace(u'.', u',') +
           QStringLiteral("  ") + marque(police.Gras, u'G') + QStringLiteral("  ") +
           marque(police.Italique, u'I') + QStringLiteral("  ") + marque(police.Souligne, u'U') + u')';
}

bool EcritSurLaPage(application::Contexte& contexte, const QString& texte, int rang)
{
    if (contexte.Chemins.CheminMedecin.isEmpty()) {
        contexte.Dehors.Boites.Information(messages::SansMedecin());
        return false;
    }
    EcritTmp(contexte.Chemins.CheminTravail, PourLaPage(texte));
    Certificat& certificat = contexte.Certificat;
    certificat.IndexCertif = rang;
    certificat.ChargeCertif = 1;
    if (certificat.CertifALD != 0) {
        certificat.DecalageCertif = 0;
    }
    contexte.Apercu.ModeApercu = 1;
    prescription::Repeint(contexte);
    return true;
}

void QuitteCertificats(application::Contexte& contexte)
{
    contexte.Apercu.ModeApercu = 2;
    prescription::EffaceApercu(contexte);
}

std::optional<QString> TexteDeLaPage(const application::Contexte& contexte)
{
    const QString tmp = CheminTmp(contexte.Chemins.CheminTravail);
    return common::FichierExiste(tmp) ? std::optional(LitTexte(tmp)) : std::nullopt;
}

void SuitLaListe(Certificat& certificat, const QStringList& avant, const QStringList& apres)
{
    const int rang = certificat.IndexCertif;
    certificat.IndexCertif =
        rang >= 0 && rang < avant.size() ? static_cast<int>(apres.indexOf(avant[rang])) : -1;
}

} // namespace certificates
