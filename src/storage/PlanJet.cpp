#include "storage/PlanJet.h"

#include "storage/Correspondance.h"

#include <algorithm>

namespace storage {

namespace {

const QLatin1String kPatients("Patients");

/// The column's type in our file: the current layout's where it holds such values, else the file's own.
TypeColonne TypeDe(TypeColonne voulu, TypeJet type)
{
    switch (type) {
    case TypeJet::Entier:
    case TypeJet::Compteur:
        return voulu == TypeColonne::Compteur ? voulu : TypeColonne::Entier;
    case TypeJet::Simple:
    case TypeJet::Double:
        return TypeColonne::Simple;
    case TypeJet::OuiNon:
        return TypeColonne::OuiNon;
    case TypeJet::Date:
    case TypeJet::Texte:
    case TypeJet::Autre:
        break;
    }
    return TypeColonne::Texte;
}

/// `BddMed` has two columns that nothing reads: whatever they hold is taken as it stands.
bool EstQuelconque(const Table& voulue, qsizetype colonne)
{
    return voulue.Nom == QLatin1String("BddMed") && (colonne == 1 || colonne == 2);
}

QStringList Noms(const TableJet& jet)
{
    QStringList noms;
    for (const TableJet::Colonne& colonne : jet.Colonnes) {
        noms.append(colonne.Nom);
    }
    return noms;
}

} // namespace

QList<Table> TablesConnues(GenreBase genre)
{
    QList<Table> tables = Tables(genre);
    if (genre == GenreBase::Ordo) {
        const QList<Table>& medoc = Tables(GenreBase::Medoc);
        tables.append(*std::ranges::find(medoc, kPatients, &Table::Nom));
    }
    return tables;
}

std::optional<PlanJet> PlanDe(const TableJet& jet, GenreBase genre)
{
    const QList<Table> connues = TablesConnues(genre);
    const auto voulue = std::ranges::find_if(
        connues, [&](const Table& table) { return table.Nom.compare(jet.Nom, Qt::CaseInsensitive) == 0; });
    if (voulue == connues.end()) {
        return {};
    }
    PlanJet plan;
    plan.Table.Nom = voulue->Nom;
    const QList<qsizetype> places = Places(*voulue, Noms(jet));
    for (qsizetype i = 0; i < places.size(); ++i) {
        if (places[i] < 0) {
            continue;
        }
        const TypeJet type = jet.Colonnes[places[i]].Type;
        if (type == TypeJet::Autre && !EstQuelconque(*voulue, i)) {
            return {};
        }
        const Colonne& colonne = voulue->Colonnes[i];
        plan.Table.Colonnes.append({colonne.Nom, TypeDe(colonne.Type, type)});
        plan.Sources.append(places[i]);
    }
    return plan;
}

bool EstDispositionCourante(const QList<Table>& tables, GenreBase genre)
{
    return std::ranges::all_of(Tables(genre), [&](const Table& table) { return tables.contains(table); });
}

} // namespace storage
