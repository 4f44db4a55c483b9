#include "medication/Lignes.h"

#include <algorithm>
#include <limits>

namespace medication {

namespace {

// Blanks between the title and the identifier of a row.
constexpr int kBlancsAjout = 100;
constexpr int kBlancsReprise = 200;
constexpr int kBlancsSaut = 300;
constexpr int kFinDeLigne = 30;

const QLatin1String kSaut("##");

prescription::Entree EntreeDe(const Saisie& saisie)
{
    return {TitreStocke(saisie.TxtMedoc), saisie.TxtPoso};
}

int AjouteEntree(prescription::Ordonnance& ordonnance, Zone zone, const prescription::Entree& entree)
{
    QList<prescription::Entree>& entrees = Entrees(ordonnance, zone);
    entrees.append(entree);
    return static_cast<int>(entrees.size()) - 1;
}

bool Existe(const prescription::LignesZone& lignes, int rang)
{
    return rang >= 0 && rang < lignes.Lignes().size();
}

Saisie SaisieDe(prescription::Ordonnance& ordonnance, Zone zone, int indice)
{
    const prescription::Entree entree = Entrees(ordonnance, zone).value(indice);
    return {TitreMontre(entree.Titre), entree.Posologie};
}

int& IndexEdition(Choix& choix, Zone zone)
{
    return zone == Zone::Un ? choix.IndexEdition1 : choix.IndexEdition2;
}

bool EstMedicament(const prescription::Ligne& ligne)
{
    return !ligne.Texte.isEmpty() && !prescription::TitreDeLigne(ligne.Texte).endsWith(u'#');
}

quint8 Nombre(const prescription::LignesZone& lignes)
{
    const auto nombre = std::ranges::count_if(lignes.Lignes(), EstMedicament);
    return static_cast<quint8>(std::min<qsizetype>(nombre, std::numeric_limits<quint8>::max()));
}

} // namespace

QString TitreStocke(const QString& texte)
{
    const QString titre = texte.trimmed();
    return titre == QLatin1String("#") ? kSaut : titre;
}

prescription::LignesZone& Lignes(prescription::Ordonnance& ordonnance, Zone zone)
{
    return zone == Zone::Un ? ordonnance.LstChoix1 : ordonnance.LstChoix2;
}

QList<prescription::Entree>& Entrees(prescription::Ordonnance& ordonnance, Zone zone)
{
    return zone == Zone::Un ? ordonnance.OrdoZone1 : ordonnance.OrdoZone2;
}

bool RepriseDe(const prescription::Ordonnance& ordonnance, const Choix& choix, Zone zone)
{
    const bool une = zone == Zone::Un;
    const int indice = une ? choix.IndexEdition1 : choix.IndexEdition2;
    const auto& entrees = une ? ordonnance.OrdoZone1 : ordonnance.OrdoZone2;
    const auto& lignes = une ? ordonnance.LstChoix1 : ordonnance.LstChoix2;
    return choix.OrigineEdition == 1 && choix.ListeSource == static_cast<quint8>(zone) && indice >= 0 &&
           indice < entrees.size() &&
           std::ranges::none_of(lignes.Lignes(), [&](const auto& ligne) { return ligne.Indice == indice; });
}

void AjouteLigne(prescription::Ordonnance& ordonnance, Zone zone, const Saisie& saisie,
                 const QString& identifiant)
{
    const int indice = AjouteEntree(ordonnance, zone, EntreeDe(saisie));
    Lignes(ordonnance, zone)
        .Ajoute({prescription::TexteDeLigne(saisie.TxtMedoc, kBlancsAjout, identifiant), indice});
}

void RemetLigne(prescription::Ordonnance& ordonnance, Choix& choix, Zone zone, const Saisie& saisie)
{
    const int indice = IndexEdition(choix, zone);
    Entrees(ordonnance, zone)[indice] = EntreeDe(saisie);
    Lignes(ordonnance, zone)
        .Ajoute({prescription::TexteDeLigne(saisie.TxtMedoc, kBlancsReprise, choix.IdentifiantRepris), indice,
                 choix.AncienRepris});
    choix.OrigineEdition = 0;
}

void AjouteSaut(prescription::Ordonnance& ordonnance, Zone zone)
{
    const int indice = AjouteEntree(ordonnance, zone, {kSaut, QString()});
    Lignes(ordonnance, zone)
        .Ajoute({prescription::TexteDeLigne(kSaut, kBlancsSaut, QStringLiteral("1")), indice});
}

std::optional<Saisie> PresseLigne(prescription::Ordonnance& ordonnance, Choix& choix, Zone zone, int rang)
{
    choix.OrigineEdition = 2;
    const prescription::LignesZone& lignes = Lignes(ordonnance, zone);
    if (!Existe(lignes, rang)) {
        return std::nullopt;
    }
    choix.ListeSource = static_cast<quint8>(zone);
    return SaisieDe(ordonnance, zone, lignes.Lignes()[rang].Indice);
}

std::optional<Saisie> ReprendLigne(prescription::Ordonnance& ordonnance, Choix& choix, Zone zone, int rang)
{
    prescription::LignesZone& lignes = Lignes(ordonnance, zone);
    if (!Existe(lignes, rang)) {
        return std::nullopt;
    }
    const prescription::Ligne ligne = lignes.Lignes()[rang];
    choix.OrigineEdition = 1;
    choix.ListeSource = static_cast<quint8>(zone);
    IndexEdition(choix, zone) = ligne.Indice;
    choix.IdentifiantRepris = ligne.Texte.right(kFinDeLigne).trimmed();
    choix.AncienRepris = ligne.EstUnCode;
    lignes.Retire(rang);
    return SaisieDe(ordonnance, zone, ligne.Indice);
}

bool PasseLigne(prescription::Ordonnance& ordonnance, const Choix& choix, Zone source, int rang,
                const Saisie& saisie)
{
    prescription::LignesZone& lignes = Lignes(ordonnance, source);
    if (choix.ListeSource != static_cast<quint8>(source) || !Existe(lignes, rang)) {
        return false;
    }
    prescription::Ligne ligne = lignes.Lignes()[rang];
    ligne.Indice = AjouteEntree(ordonnance, Autre(source), EntreeDe(saisie));
    Lignes(ordonnance, Autre(source)).Ajoute(ligne);
    lignes.Retire(rang);
    return true;
}

Fleches FlechesDe(const prescription::LignesZone& lignes, int rang)
{
    const int nombre = static_cast<int>(lignes.Lignes().size());
    if (nombre < 2 || !Existe(lignes, rang)) {
        return {};
    }
    return {rang > 0, rang < nombre - 1};
}

void CompteMedicaments(prescription::Ordonnance& ordonnance)
{
    ordonnance.NbMedZone1 = Nombre(ordonnance.LstChoix1);
    ordonnance.NbMedZone2 = Nombre(ordonnance.LstChoix2);
}

bool ZoneHorsPage(const prescription::Ordonnance& ordonnance)
{
    return ordonnance.ChkALD == 0 && !ordonnance.LstChoix2.Vide();
}

void CocheDup(prescription::Ordonnance& ordonnance, quint8 etat)
{
    ordonnance.ChkDup = etat;
    ordonnance.ChkTri = etat ? 0 : ordonnance.ChkTri;
}

void CocheTri(prescription::Ordonnance& ordonnance, quint8 etat)
{
    ordonnance.ChkTri = etat;
    ordonnance.ChkDup = etat ? 0 : ordonnance.ChkDup;
}

} // namespace medication
