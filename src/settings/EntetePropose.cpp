#include "settings/EntetePropose.h"

#include "application/Signaux.h"
#include "common/Fichiers.h"
#include "outside/Tente.h"
#include "settings/Enregistrement.h"
#include "startup/Chemins.h"
#include "startup/Medecins.h"
#include "storage/Bases.h"

namespace settings {

namespace {

constexpr size_t kRangNom = 10;
constexpr size_t kRangProfession = 11;
constexpr float kTailleNom = 16;
constexpr float kTailleProfession = 11;

QString CheminRefus(const application::Contexte& contexte)
{
    return common::Joint(contexte.Chemins.CheminMedecin, QStringLiteral("EntetePropose.cfg"));
}

bool Declinee(const application::Contexte& contexte)
{
    quint8 declinee = 0;
    LitEnregistrement(CheminRefus(contexte), std::tie(declinee));
    return declinee == 1;
}

QString NomComplet(const QString& nomMedecin)
{
    const QLatin1String titre("DR ");
    return nomMedecin.startsWith(titre) ? QStringLiteral("Docteur ") + nomMedecin.mid(titre.size())
                                        : nomMedecin;
}

/// A text that ends as a marker does is closed by one, which is not printed.
QString AvecMarque(const QString& texte)
{
    const bool commeUneMarque = texte.endsWith(QLatin1Char('*')) || texte.endsWith(QLatin1Char('$'));
    return commeUneMarque ? texte + QLatin1Char('$') : texte;
}

bool ToutPremiers(const QList<page::LigneEntete>& lignes)
{
    if (lignes.size() != storage::kLignesEntete) {
        return false;
    }
    for (int numero = 0; numero < storage::kLignesEntete; ++numero) {
        const page::LigneEntete& ligne = lignes.at(numero);
        if (ligne.NumLigne != numero || ligne.Texte != storage::TextePremiereEntete(numero)) {
            return false;
        }
    }
    return true;
}

void EnregistreLaProposition(application::Contexte& contexte)
{
    const QList<page::LigneEntete> lignes =
        page::LitEntete(contexte.Bases.Ordo(contexte.Chemins.CheminMedecin));
    if (!ToutPremiers(lignes)) {
        Q_EMIT contexte.Signaux.FaceChange();
        return;
    }
    Entete entete = ChargeEntete(contexte);
    entete.Rangs = RangsProposes(NomDuMedecinCourant(contexte));
    EnregistreEntete(contexte, entete);
}

} // namespace

RangsEntete RangsProposes(const QString& nomMedecin)
{
    RangsEntete rangs;
    for (RangEntete& rang : rangs) {
        rang.Texte = QStringLiteral("*");
    }
    const QString nom = NomComplet(nomMedecin.trimmed());
    rangs[kRangNom] = {AvecMarque(nom), {.Taille = kTailleNom, .Gras = true}, 0};
    rangs[kRangProfession] = {QStringLiteral("Médecin généraliste"), {.Taille = kTailleProfession}, 0};
    rangs[page::kBasDePage].Texte.clear(); // the foot is printed as it stands, a marker included
    rangs[kRangSignature].Texte = nom;
    return rangs;
}

QString NomDuMedecinCourant(const application::Contexte& contexte)
{
    const startup::Medecins& medecins = contexte.Medecins;
    const bool choisi = medecins.Selection >= 0 && medecins.Selection < medecins.Liste.size();
    return choisi ? medecins.Liste.at(medecins.Selection).Nom : QString();
}

bool EnteteAProposer(const application::Contexte& contexte, const QList<page::LigneEntete>& lignes)
{
    return !contexte.Chemins.CheminMedecin.isEmpty() && !NomDuMedecinCourant(contexte).isEmpty() &&
           ToutPremiers(lignes) && !Declinee(contexte);
}

bool UtiliseEntete(application::Contexte& contexte)
{
    return outside::Tente(contexte.Dehors.Boites, [&] { EnregistreLaProposition(contexte); });
}

bool LaisseEntete(application::Contexte& contexte)
{
    return outside::Tente(contexte.Dehors.Boites, [&] {
        const quint8 declinee = 1;
        EcritEnregistrement(CheminRefus(contexte), std::tie(declinee));
        Q_EMIT contexte.Signaux.FaceChange();
    });
}

} // namespace settings
