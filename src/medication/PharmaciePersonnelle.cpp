#include "medication/PharmaciePersonnelle.h"

#include "storage/Base.h"
#include "storage/Jeu.h"

namespace medication {

namespace {

const QLatin1String kTable("Biblio");

// Its columns.
constexpr int kTitre = 0;
constexpr int kPosologie = 1;

storage::Jeu EntreeDe(storage::Base& medoc, const QString& titre)
{
    return medoc.Selection(kTable, QStringLiteral("ifnull(Titre, '') = ?"), {titre});
}

void Ecris(storage::Jeu& entree, const Saisie& saisie)
{
    entree.Ecris(kTitre, saisie.TxtMedoc);
    entree.Ecris(kPosologie, saisie.TxtPoso);
    entree.Update();
}

} // namespace

QStringList PharmaciePersonnelle::Titres()
{
    QStringList titres;
    for (storage::Jeu entrees = medoc_.Table(kTable); !entrees.Fin(); entrees.MoveNext()) {
        titres.append(entrees.Texte(kTitre));
    }
    return titres;
}

std::optional<QString> PharmaciePersonnelle::Posologie(const QString& titre)
{
    const storage::Jeu entree = EntreeDe(medoc_, titre);
    return entree.Fin() ? std::nullopt : std::optional(entree.Texte(kPosologie));
}

void PharmaciePersonnelle::Ajoute(const Saisie& saisie)
{
    storage::Jeu entrees = medoc_.Selection(kTable, QStringLiteral("1 = 0"), {});
    entrees.AddNew();
    Ecris(entrees, saisie);
}

bool PharmaciePersonnelle::Change(const QString& titre, const Saisie& saisie)
{
    storage::Jeu entree = EntreeDe(medoc_, titre);
    if (entree.Fin()) {
        return false;
    }
    entree.Edit();
    Ecris(entree, saisie);
    return true;
}

bool PharmaciePersonnelle::Supprime(const QString& titre)
{
    storage::Jeu entree = EntreeDe(medoc_, titre);
    if (entree.Fin()) {
        return false;
    }
    entree.Delete();
    return true;
}

} // namespace medication
