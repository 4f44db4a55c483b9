#include "Reconstruction.h"

#include "LecteurLignes.h"
#include "messages.h"

#include "storage/Base.h"
#include "storage/Pannes.h"
#include "storage/messages.h"

#include <algorithm>
#include <limits>

namespace utile {

using storage::Base;
using storage::Cite;
using storage::TypeColonne;

namespace {

/// The tables of the draft become those of the file that is repaired.
void PoseTables(Base& base, const Releve& releve)
{
    for (const TableRelevee& relevee : releve.Tables()) {
        const storage::Table* posee = base.ChercheTable(relevee.Table.Nom);
        if (posee && *posee == relevee.Table) {
            continue;
        }
        if (posee) {
            base.Execute(QStringLiteral("drop table ") + Cite(posee->Nom));
        }
        base.Execute(storage::CreeTableSql(relevee.Table));
    }
    base.Execute(QStringLiteral("pragma user_version = 0"));
}

int PlaceCompteur(const storage::Table& table)
{
    const auto compteur = std::ranges::find(table.Colonnes, TypeColonne::Compteur, &storage::Colonne::Type);
    return compteur == table.Colonnes.end() ? -1 : static_cast<int>(compteur - table.Colonnes.begin());
}

QString InstructionPour(const storage::Table& table)
{
    QStringList colonnes;
    if (PlaceCompteur(table) < 0) {
        colonnes.append(QStringLiteral("rowid"));
    }
    for (const storage::Colonne& colonne : table.Colonnes) {
        colonnes.append(Cite(colonne.Nom));
    }
    const QStringList places(colonnes.size(), QStringLiteral("?"));
    return QStringLiteral("insert into %1 (%2) values (%3)")
        .arg(Cite(table.Nom), colonnes.join(u','), places.join(u','));
}

/// The row as it is stored again; empty when nothing of it is left, or nothing in it would tell that numbers
/// are missing.
QVariantList Ligne(const storage::Table& table, qint64 cle, Champs champs, bool& incomplete)
{
    const auto presents =
        std::ranges::count_if(champs.Valeurs, [](const QVariant& v) { return v.isValid(); });
    qsizetype textes = 0;
    for (const int manquant : champs.Manquants) {
        if (champs.Valeurs[manquant].isValid()) {
            champs.Valeurs[manquant] = messages::TexteIllisible();
            ++textes;
        }
    }
    if (!champs.Manquants.isEmpty() && (presents == textes || textes == 0)) {
        return {};
    }
    incomplete = !champs.Manquants.isEmpty();
    champs.Valeurs.resize(table.Colonnes.size());
    const int compteur = PlaceCompteur(table);
    if (compteur >= 0) {
        champs.Valeurs[compteur] = cle;
    } else {
        champs.Valeurs.prepend(cle);
    }
    return champs.Valeurs;
}

/// The most rows that can have stood where pages are broken; nothing when no end is known.
std::optional<qint64> PlacesDesTrous(const TableRelevee& relevee)
{
    qint64 places = 0;
    for (const TableRelevee::Trou& trou : relevee.Trous) {
        const qint64 bas = std::max<qint64>(trou.Bas, 0);
        const bool ouvert = trou.Haut == std::numeric_limits<qint64>::max();
        if (ouvert && !relevee.DerniereCle) {
            return {};
        }
        const qint64 haut = ouvert ? *relevee.DerniereCle : trou.Haut;
        const auto retrouvees =
            std::distance(relevee.Lignes.upper_bound(bas), relevee.Lignes.upper_bound(std::max(bas, haut)));
        places += std::max<qint64>(0, haut - bas - retrouvees);
    }
    return places;
}

void CompteLesPertes(BilanTable& bilan, const TableRelevee& relevee)
{
    if (relevee.Declarees) {
        bilan.Perdues = std::max<qint64>(0, *relevee.Declarees - bilan.Gardees);
        return;
    }
    const auto places = PlacesDesTrous(relevee);
    const qint64 illisibles = static_cast<qint64>(relevee.Lignes.size()) - bilan.Gardees;
    bilan.Perdues = relevee.Brisees + illisibles + places.value_or(0);
    bilan.AuPlus = places.value_or(0) > 0;
    bilan.Inconnu = !places;
}

BilanTable Recopie(Base& base, const PagesSqlite& pages, const TableRelevee& relevee)
{
    BilanTable bilan{relevee.Table.Nom};
    const QString instruction = InstructionPour(relevee.Table);
    LecteurLignes lecteur(pages);
    for (const auto& [cle, lieu] : relevee.Lignes) {
        bool incomplete = false;
        const QVariantList ligne = Ligne(relevee.Table, cle, lecteur.Lit(lieu), incomplete);
        if (!ligne.isEmpty()) {
            base.Execute(instruction, ligne);
            ++bilan.Gardees;
            bilan.Incompletes += incomplete;
        }
    }
    CompteLesPertes(bilan, relevee);
    return bilan;
}

/// Numbers that were given once are not given again.
void ReprendCompteur(Base& base, const TableRelevee& relevee)
{
    if (PlaceCompteur(relevee.Table) < 0 || !relevee.DerniereCle) {
        return;
    }
    base.Execute(QStringLiteral("insert into sqlite_sequence (name, seq) select ?, 0 where not exists "
                                "(select 1 from sqlite_sequence where name = ?)"),
                 {relevee.Table.Nom, relevee.Table.Nom});
    base.Execute(QStringLiteral("update sqlite_sequence set seq = max(seq, ?) where name = ?"),
                 {*relevee.DerniereCle, relevee.Table.Nom});
}

} // namespace

QList<BilanTable> Reconstruit(const PagesSqlite& pages, const Releve& releve, const QString& ebauche,
                              storage::GenreBase genre)
{
    storage::CreeBase(ebauche, genre, storage::ContenuInitial::Aucun);
    QList<BilanTable> bilans;
    {
        Base base(ebauche, genre, storage::Disposition::Telle);
        storage::Transaction transaction(base);
        PoseTables(base, releve);
        for (const TableRelevee& relevee : releve.Tables()) {
            bilans.append(Recopie(base, pages, relevee));
            ReprendCompteur(base, relevee);
        }
        transaction.Valide();
    }
    Base completee(ebauche, genre); // brings it to the current layout
    completee.Execute(QStringLiteral("vacuum"));
    return bilans;
}

} // namespace utile
