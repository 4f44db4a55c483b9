#include "settings/Entete.h"

#include "application/Signaux.h"
#include "common/Fichiers.h"
#include "common/Nombres.h"
#include "common/Tolere.h"
#include "settings/FichiersReglages.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"
#include "storage/Jeu.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace settings {

namespace {

constexpr double kMargeExtreme = 9999; // millimetres; its record has no exponent

/// A file that goes back to what it was unless it is kept.
class FichierRendu
{
public:
    explicit FichierRendu(const QString& chemin) : chemin_(chemin)
    {
        if (common::FichierExiste(chemin)) {
            avant_ = common::LitFichier(chemin);
        }
    }
    ~FichierRendu()
    {
        if (!garde_) {
            // The failure on its way out is the one to tell.
            common::Tolere([&] { Rend(); });
        }
    }
    FichierRendu(const FichierRendu&) = delete;
    FichierRendu& operator=(const FichierRendu&) = delete;

    void Garde() { garde_ = true; }

private:
    void Rend() const
    {
        if (avant_) {
            common::EcritFichier(chemin_, *avant_);
        } else {
            common::SupprimeFichier(chemin_);
        }
    }

    QString chemin_;
    std::optional<QByteArray> avant_;
    bool garde_ = false;
};

QString AvecRetours(QString texte)
{
    texte.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return texte.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

// A null draws nothing, as a lone "*" does above the foot.
QString SansTexte(int numero)
{
    return numero < page::kBasDePage ? QStringLiteral("*") : QString();
}

void EcritRangs(storage::Base& ordo, const RangsEntete& rangs)
{
    storage::Jeu jeu = ordo.Table(QStringLiteral("Entete"));
    for (; !jeu.Fin(); jeu.MoveNext()) {
        jeu.Delete();
    }
    for (int numero = 0; numero < storage::kLignesEntete; ++numero) {
        const RangEntete& rang = rangs.at(static_cast<size_t>(numero));
        jeu.AddNew();
        jeu.Ecris(page::kNumLigne, numero);
        jeu.Ecris(page::kTexte, rang.Texte);
        jeu.Ecris(page::kPolice, rang.Police.Nom);
        jeu.Ecris(page::kTaille, rang.Police.Taille);
        jeu.Ecris(page::kGras, rang.Police.Gras);
        jeu.Ecris(page::kItalique, rang.Police.Italique);
        jeu.Ecris(page::kSouligne, rang.Police.Souligne);
        jeu.Ecris(page::kEspaces, rang.EspacesLigne);
        jeu.Update();
    }
}

/// One row: the last one counts when it is read, so that none may stand behind the one written.
void EcritCouleur(storage::Base& ordo, page::Couleur couleur)
{
    storage::Jeu jeu = ordo.Table(QStringLiteral("CouleurPET"));
    if (jeu.Fin()) {
        jeu.AddNew();
    } else {
        jeu.Edit();
    }
    jeu.Ecris(0, couleur);
    jeu.Update();
    for (jeu.MoveNext(); !jeu.Fin(); jeu.MoveNext()) {
        jeu.Delete();
    }
}

Marges MargesAvec(Marges marges, const Entete& entete)
{
    marges.MargeGaucheEntete = entete.MargeGauche;
    marges.MargeHauteEntete = entete.MargeHaute;
    marges.MargeBasEntete = entete.MargeBas;
    return marges;
}

void Ecrit(application::Contexte& contexte, const Entete& entete, const Marges& marges)
{
    const QString& chemin = contexte.Chemins.CheminMedecin;
    storage::Base& ordo = contexte.Bases.Ordo(chemin);
    FichierRendu fichier(common::Joint(chemin, QStringLiteral("Marges.cfg")));
    storage::Transaction transaction(ordo);
    EcritRangs(ordo, entete.Rangs);
    EcritCouleur(ordo, entete.Couleur);
    EcritMarges(marges, chemin);
    transaction.Valide();
    fichier.Garde();
}

QString Signature(const RangsEntete& rangs)
{
    return rangs[kRangSignature].Texte.trimmed();
}

} // namespace

RangsEntete PremiersRangs()
{
    RangsEntete rangs;
    for (int numero = 0; numero < storage::kLignesEntete; ++numero) {
        rangs.at(static_cast<size_t>(numero)).Texte = storage::TextePremiereEntete(numero);
    }
    return rangs;
}

RangsEntete RangsDe(const QList<page::LigneEntete>& lignes)
{
    RangsEntete rangs = PremiersRangs();
    for (const page::LigneEntete& ligne : lignes) {
        if (ligne.NumLigne < 0 || ligne.NumLigne >= storage::kLignesEntete || ligne.Nulles[page::kNumLigne]) {
            continue;
        }
        RangEntete& rang = rangs.at(static_cast<size_t>(ligne.NumLigne));
        rang.Texte = ligne.Nulles[page::kTexte] ? SansTexte(ligne.NumLigne) : AvecRetours(ligne.Texte);
        rang.Police = ligne.PoliceApres(rang.Police);
        rang.EspacesLigne = static_cast<qint16>(std::clamp<double>(
            ligne.Espaces, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()));
    }
    return rangs;
}

QList<page::LigneEntete> LignesDe(const RangsEntete& rangs)
{
    QList<page::LigneEntete> lignes;
    for (const RangEntete& rang : rangs) {
        lignes.append({.NumLigne = static_cast<int>(lignes.size()),
                       .Texte = rang.Texte,
                       .Police = rang.Police,
                       .Espaces = static_cast<double>(rang.EspacesLigne)});
    }
    return lignes;
}

float MargeTapee(QStringView texte)
{
    const double valeur = common::Val(texte);
    return std::isnan(valeur) ? 0 : static_cast<float>(std::clamp(valeur, -kMargeExtreme, kMargeExtreme));
}

Entete PremiereEntete(const Reglages& reglages)
{
    return {.Rangs = PremiersRangs(),
            .Couleur = reglages.Look.CouleurEntete,
            .MargeGauche = reglages.Marges.MargeGaucheEntete,
            .MargeHaute = reglages.Marges.MargeHauteEntete,
            .MargeBas = reglages.Marges.MargeBasEntete};
}

Entete ChargeEntete(application::Contexte& contexte)
{
    storage::Base& ordo = contexte.Bases.Ordo(contexte.Chemins.CheminMedecin);
    const QList<page::LigneEntete> lignes = page::LitEntete(ordo);
    Look lu;
    ChargeLook(lu, ordo);
    Look& look = contexte.Reglages.Look;
    look.CouleurEntete = lu.CouleurEntete;
    look.NomSignature = lu.NomSignature;
    Entete entete = PremiereEntete(contexte.Reglages);
    entete.Rangs = RangsDe(lignes);
    return entete;
}

void EnregistreEntete(application::Contexte& contexte, const Entete& entete)
{
    const Marges marges = MargesAvec(contexte.Reglages.Marges, entete);
    Ecrit(contexte, entete, marges);
    contexte.Reglages.Marges = marges;
    contexte.Reglages.Look.CouleurEntete = entete.Couleur;
    contexte.Reglages.Look.NomSignature = Signature(entete.Rangs);
    Q_EMIT contexte.Signaux.FaceChange();
}

void SuspendEntete(application::Contexte& contexte, const Entete& saisie, const Entete& stockee)
{
    QHash<QString, Entete>& suspens = contexte.Reglages.EntetesEnSuspens;
    if (saisie == stockee) {
        suspens.remove(contexte.Chemins.CheminMedecin);
    } else {
        suspens.insert(contexte.Chemins.CheminMedecin, saisie);
    }
}

Entete EnteteEnSuspens(const application::Contexte& contexte, const Entete& stockee)
{
    return contexte.Reglages.EntetesEnSuspens.value(contexte.Chemins.CheminMedecin, stockee);
}

} // namespace settings
