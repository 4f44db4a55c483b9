#include "prescription/Impression.h"

#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "outside/Boites.h"
#include "outside/Horloge.h"
#include "outside/Imprimantes.h"
#include "patients/Patient.h"
#include "prescription/Apercu.h"
#include "prescription/Editeur.h"
#include "prescription/Envoi.h"
#include "prescription/Feuillets.h"
#include "prescription/Journal.h"
#include "prescription/PageCertificat.h"
#include "prescription/messages.h"
#include "startup/Chemins.h"
#include "startup/Medecins.h"
#include "storage/Bases.h"

namespace prescription {

namespace {

/// What one run of the command works with.
struct Tirage
{
    application::Contexte& Contexte;
    page::Modele& Modele;
    QImage Logo;
    QString Imprimante;
    outside::Travail Travail;
    std::optional<QString> TexteCertificat; ///< of a certificate alone
};

QString TitreDuTravail(const patients::Patient& patient)
{
    const QString nom = patient.NomSeul.simplified();
    return nom.isEmpty() ? QStringLiteral("Ordonnance") : nom;
}

/// A sheet without its letterhead is no prescription: nothing is printed then.
bool LitLEntete(application::Contexte& contexte)
{
    try {
        page::LitEntete(contexte.Bases.Ordo(contexte.Chemins.CheminMedecin));
        return true;
    } catch (const common::Erreur& erreur) {
        contexte.Dehors.Boites.Stop(messages::EnteteIllisible(erreur.Phrase()));
        return false;
    }
}

/// The text of a certificate, if one is on the page. False when it has gone.
bool LitLeCertificat(application::Contexte& contexte, std::optional<QString>& texte)
{
    if (contexte.Apercu.ModeApercu != 1) {
        return true;
    }
    texte = TexteDuCertificat(contexte.Chemins);
    if (!texte) {
        contexte.Dehors.Boites.Stop(messages::CertificatIllisible());
    }
    return texte.has_value();
}

void Peint(Tirage& tirage)
{
    if (tirage.TexteCertificat) {
        tirage.Travail.Pages = {
            PeintFeuilletCertificat(tirage.Modele, tirage.Logo, tirage.Contexte, *tirage.TexteCertificat)};
        return;
    }
    tirage.Travail.Pages = PeintFeuillets(tirage.Modele, tirage.Logo, tirage.Contexte.Impression.NbCopies,
                                          tirage.Contexte.Dehors.Boites);
}

bool AccepteLaPerte(const Tirage& tirage)
{
    const int perdues = page::LignesPerdues(tirage.Travail.Pages.constFirst(), tirage.Modele.Reglages);
    return perdues == 0 || tirage.Contexte.Dehors.Boites.Question(
                               messages::LignesHorsDeLaFeuille(perdues, tirage.TexteCertificat.has_value()),
                               outside::Bouton::Non);
}

void AbandonneLePremier(Tirage& tirage)
{
    if (tirage.Contexte.Impression.EtatImprimante != 1) {
        return;
    }
    tirage.Contexte.Impression.EtatImprimante = 2;
    tirage.Contexte.Dehors.Imprimantes.Abandonne(tirage.Travail);
    Peint(tirage);
}

void InscritAuJournal(application::Contexte& contexte)
{
    if (contexte.Apercu.ModeApercu == 1 || contexte.Reglages.Options.TenirJournal != 1) {
        return;
    }
    try {
        TientJournal(CheminJournal(contexte.Chemins.CheminMedecin, contexte.Medecins.NomMedecinSignature),
                     contexte.Ordonnance.LigneJournal);
    } catch (const common::Erreur& erreur) {
        contexte.Dehors.Boites.Stop(messages::JournalNonEcrit(erreur.Phrase()));
    }
}

} // namespace

bool ImprimeDocument(application::Contexte& contexte)
{
    std::optional<QString> certificat;
    if (!LitLEntete(contexte) || !LitLeCertificat(contexte, certificat)) {
        return false;
    }
    const QString imprimante = ImprimanteEnUsage(contexte);
    contexte.Impression.NbCopies = NombreDeCopies(contexte.Ordonnance, contexte.Apercu.ModeApercu);
    QList<page::LigneEntete> entete;
    page::Modele modele = ModelePage(contexte, entete);
    Tirage tirage{
        contexte,
        modele,
        ChargeLogo(contexte.Reglages.Options),
        imprimante,
        {.Titre = TitreDuTravail(contexte.Patient), .Pages = {}, .CheminPdf = DossierPdf(contexte.Chemins)},
        certificat};
    Peint(tirage);
    if (!AccepteLaPerte(tirage)) {
        return false;
    }
    AbandonneLePremier(tirage);
    if (!Envoie(contexte, imprimante, tirage.Travail)) {
        return false;
    }
    InscritAuJournal(contexte);
    return true;
}

} // namespace prescription
