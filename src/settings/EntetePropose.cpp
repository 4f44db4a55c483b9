#include "settings/EntetePropose.h"

#include "application/Signaux.h"
#include "common/Fichiers.h"
#include "outside/Tente.h"
#include "page/Surface.h"
#include "settings/Enregistrement.h"
#include "settings/FichiersReglages.h"
#include "startup/Chemins.h"
#include "startup/Medecins.h"
#include "storage/Bases.h"

namespace settings {

namespace {

constexpr size_t kRangTitre = 11; // under a blank line, away from the edge of the paper
constexpr size_t kRangNom = 12;
constexpr size_t kRangFilet = 13;
constexpr float kTailleTitre = 11;
constexpr float kTailleNom = 20;
constexpr float kMoindreTailleNom = 11;
constexpr float kTailleFilet = 6;
constexpr int kLongueurFilet = 60;    // underscores, about 70 mm
constexpr double kLargeurDuNom = 100; // millimetres

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

/// The doctor as his letterhead names him.
struct Nom
{
    QString Titre; ///< empty for a name that bears none
    QString Seul;
};

Nom NomDe(const QString& nomMedecin)
{
    const QLatin1String titre("DR ");
    return nomMedecin.startsWith(titre) ? Nom{QStringLiteral("Docteur"), nomMedecin.mid(titre.size())}
                                        : Nom{{}, nomMedecin};
}

/// The largest size at which the name keeps to its width.
page::Police PoliceDuNom(const QString& nom)
{
    page::Surface mesure(page::Cible::Autre);
    page::Police police{.Taille = kTailleNom, .Gras = true};
    mesure.Font(police);
    while (police.Taille > kMoindreTailleNom && mesure.TextWidth(nom) > kLargeurDuNom) {
        police.Taille -= 1;
        mesure.Font(police);
    }
    return police;
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
    contexte.Reglages.Options.ModeEntete = kOrdrePropose;
    EcritOptions(contexte.Reglages.Options, contexte.Chemins.CheminMedecin);
    Q_EMIT contexte.Signaux.FaceChange();
}

} // namespace

RangsEntete RangsProposes(const QString& nomMedecin)
{
    RangsEntete rangs;
    for (RangEntete& rang : rangs) {
        rang.Texte = QStringLiteral("*");
    }
    const Nom nom = NomDe(nomMedecin.trimmed());
    if (!nom.Titre.isEmpty()) {
        rangs[kRangTitre] = {nom.Titre, {.Taille = kTailleTitre}, 0};
    }
    rangs[kRangTitre - 1].Texte.clear();
    rangs[kRangNom] = {AvecMarque(nom.Seul), PoliceDuNom(nom.Seul), 0};
    rangs[kRangFilet] = {QString(kLongueurFilet, QLatin1Char('_')), {.Taille = kTailleFilet}, 0};
    rangs[page::kBasDePage].Texte.clear(); // the foot is printed as it stands, a marker included
    rangs[kRangSignature].Texte = QStringLiteral("%1 %2").arg(nom.Titre, nom.Seul).trimmed();
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
