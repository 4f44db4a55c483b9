#include "Releve.h"

#include "Convenance.h"
#include "LecteurLignes.h"

#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace utile {

using Trou = TableRelevee::Trou;

namespace {

constexpr int kProfondeur = 20;
constexpr Trou kTout{std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()};

/// A table as the statement that made it says, when it is one of ours.
std::optional<storage::Table> LitCreation(const QString& nom, const QString& creation)
{
    static const QRegularExpression colonne(QStringLiteral(
        R"rx([(,]\s*"((?:[^"]|"")*)" (INTEGER PRIMARY KEY AUTOINCREMENT|TEXT|INTEGER|REAL|BOOLEAN DEFAULT 0)(?=\s*[,)]))rx"));
    storage::Table table{nom, {}};
    for (auto i = colonne.globalMatch(creation); i.hasNext();) {
        const auto trouvee = i.next();
        const QString type = trouvee.captured(2);
        const bool cle = type.contains(QLatin1String("PRIMARY"));
        table.Colonnes.append({trouvee.captured(1).replace(QLatin1String("\"\""), QLatin1String("\"")),
                               storage::TypeDeclare(type.section(u' ', 0, 0), cle)});
    }
    const bool reconnue = storage::CreeTableSql(table).compare(creation, Qt::CaseInsensitive) == 0;
    return reconnue && !table.Colonnes.isEmpty() ? std::optional(table) : std::nullopt;
}

const storage::Table* Modele(const QString& nom, storage::GenreBase genre)
{
    const auto& tables = storage::Tables(genre);
    const auto modele = std::ranges::find(tables, nom, &storage::Table::Nom);
    return modele == tables.end() ? nullptr : &*modele;
}

/// The longest part of the ranks whose keys only grow: what stands against it is broken.
QList<std::pair<int, qint64>> Croissantes(const QList<std::pair<int, qint64>>& lignes)
{
    QList<int> longueur(lignes.size(), 1);
    QList<int> avant(lignes.size(), -1);
    int fin = -1;
    for (int i = 0; i < lignes.size(); ++i) {
        for (int j = i - 1; j >= 0; --j) {
            if (lignes[j].second < lignes[i].second && longueur[j] + 1 > longueur[i]) {
                longueur[i] = longueur[j] + 1;
                avant[i] = j;
            }
        }
        fin = fin < 0 || longueur[i] > longueur[fin] ? i : fin;
    }
    QList<std::pair<int, qint64>> gardees;
    for (; fin >= 0; fin = avant[fin]) {
        gardees.prepend(lignes[fin]);
    }
    return gardees;
}

bool SeTouchent(const Trou& trou, qint64 premiere, qint64 derniere)
{
    return derniere > trou.Bas && premiere <= trou.Haut;
}

/// Packs are named by their numbers, titles of texts are not: the two tables look the same otherwise.
bool SontDesCip(const QList<Champs>& lignes)
{
    return std::ranges::all_of(lignes, [](const Champs& ligne) {
        bool nombre = false;
        ligne.Valeurs.value(0).toString().toLongLong(&nombre);
        return nombre;
    });
}

} // namespace

Releve::Releve(const PagesSqlite& pages, storage::GenreBase genre) : pages_(pages), vues_(pages.Libres())
{
    LitListe(genre);
    SuitTables();
    LitCompteurs();
    CompteIndexes();
    PlaceOrphelines();
}

/// The list of tables is a table itself, and begins on the first page.
void Releve::LitListe(storage::GenreBase genre)
{
    TableRelevee liste;
    liste.Table.Colonnes = QList<storage::Colonne>(5);
    Suit(liste, 1, kTout, 0);
    vues_.insert(1);
    LecteurLignes lecteur(pages_);
    for (const auto& [cle, lieu] : liste.Lignes) {
        const auto champs = lecteur.Lit(lieu);
        if (champs.Manquants.isEmpty()) {
            LitEntree(champs.Valeurs, genre);
        }
    }
    listeEntiere_ = liste.Trous.isEmpty() && liste.Brisees == 0 && !liste.Lignes.empty();
    AjouteAbsentes(genre);
}

void Releve::LitEntree(const QVariantList& entree, storage::GenreBase genre)
{
    const QString nom = entree.value(1).toString();
    const Racine racine{entree.value(2).toString(), entree.value(3).toUInt()};
    if (entree.value(0) == QLatin1String("index")) {
        index_.append(racine);
    } else if (nom == QLatin1String("sqlite_sequence")) {
        compteurs_ = racine.Page;
    } else if (entree.value(0) == QLatin1String("table")) {
        auto table = LitCreation(nom, entree.value(4).toString());
        const storage::Table* modele = Modele(nom, genre);
        if (table || modele) {
            tables_.append(TableRelevee{table ? *table : *modele, {}, {}, 0, {}, {}});
            racines_.append({nom, racine.Page});
        }
    }
}

/// Where the list is broken, tables that it does not name may be there all the same.
void Releve::AjouteAbsentes(storage::GenreBase genre)
{
    if (listeEntiere_) {
        return;
    }
    for (const storage::Table& table : storage::Tables(genre)) {
        const auto nommee = [&](const TableRelevee& autre) { return autre.Table.Nom == table.Nom; };
        if (std::ranges::none_of(tables_, nommee)) {
            tables_.append(TableRelevee{table, {}, {kTout}, 0, {}, {}});
        }
    }
}

void Releve::SuitTables()
{
    for (const Racine& racine : racines_) {
        auto table = std::ranges::find(tables_, racine.Table, [](const auto& t) { return t.Table.Nom; });
        Suit(*table, racine.Page, kTout, 0);
        if (table->Lignes.empty() && table->Trous.isEmpty() && table->Brisees == 0) {
            table->Declarees = 0;
        }
    }
}

void Releve::LitCompteurs()
{
    TableRelevee compteurs;
    compteurs.Table.Colonnes = QList<storage::Colonne>(2);
    if (compteurs_ > 1) {
        Suit(compteurs, compteurs_, kTout, 0);
    }
    LecteurLignes lecteur(pages_);
    for (const auto& [cle, lieu] : compteurs.Lignes) {
        const Champs champs = lecteur.Lit(lieu);
        for (TableRelevee& table : tables_) {
            if (champs.Manquants.isEmpty() && table.Table.Nom == champs.Valeurs.value(0).toString()) {
                table.DerniereCle = champs.Valeurs.value(1).toLongLong();
            }
        }
    }
}

/// An index has an entry for each row: one that is whole tells how many there were.
void Releve::CompteIndexes()
{
    for (const Racine& racine : index_) {
        const auto nombre = Compte(racine.Page, 0);
        for (TableRelevee& table : tables_) {
            if (table.Table.Nom == racine.Table && nombre) {
                table.Declarees = std::max(table.Declarees.value_or(0), *nombre);
            }
        }
    }
}

std::optional<qint64> Releve::Compte(quint32 page, int profondeur)
{
    const PageArbre lue(pages_, page);
    if (lue.Genre() == GenrePage::FeuilleIndex && lue.EstCoherente()) {
        return lue.NbCellules();
    }
    if (lue.Genre() != GenrePage::NoeudIndex || profondeur > kProfondeur) {
        return {};
    }
    qint64 nombre = lue.NbCellules();
    for (int i = 0; i <= lue.NbCellules(); ++i) {
        const auto enfant = lue.Enfant(i);
        const auto dessous = enfant ? Compte(enfant->first, profondeur + 1) : std::nullopt;
        if (!dessous) {
            return {};
        }
        nombre += *dessous;
    }
    return nombre;
}

/// A page belongs here when nobody else has it, and one of its rows or children lies within the bounds.
bool Releve::EstPlausible(const TableRelevee& table, quint32 page, Trou bornes, int profondeur)
{
    const PageArbre lue(pages_, page);
    if (vues_.contains(page) || profondeur > kProfondeur) {
        return false;
    }
    const auto dedans = [&](qint64 cle) { return cle > bornes.Bas && cle <= bornes.Haut; };
    if (lue.Genre() == GenrePage::Noeud) {
        for (int i = 0; i < lue.NbCellules(); ++i) {
            const auto enfant = lue.Enfant(i);
            if (enfant && dedans(enfant->second)) {
                return true;
            }
        }
        return lue.NbCellules() == 0 || profondeur == 0;
    }
    if (lue.Genre() != GenrePage::Feuille) {
        return false;
    }
    for (int i = 0; i < lue.NbCellules(); ++i) {
        const auto cellule = lue.Ligne(i);
        const auto champs = cellule && dedans(cellule->Cle) ? Demonte(*cellule) : std::nullopt;
        if (champs && champs->Valeurs.size() <= std::max<qsizetype>(1, table.Table.Colonnes.size())) {
            return true;
        }
    }
    return lue.NbCellules() == 0 && profondeur == 0;
}

void Releve::Suit(TableRelevee& table, quint32 page, Trou bornes, int profondeur)
{
    if (!EstPlausible(table, page, bornes, profondeur)) {
        table.Trous.append(bornes);
        return;
    }
    vues_.insert(page);
    const PageArbre lue(pages_, page);
    if (lue.Genre() == GenrePage::Feuille) {
        LitFeuille(table, page, Feuille(pages_, page), bornes);
    } else {
        SuitNoeud(table, lue, bornes, profondeur);
    }
}

void Releve::SuitNoeud(TableRelevee& table, const PageArbre& noeud, Trou bornes, int profondeur)
{
    qint64 bas = bornes.Bas;
    for (int i = 0; i <= noeud.NbCellules(); ++i) {
        const auto enfant = noeud.Enfant(i);
        const bool dernier = i == noeud.NbCellules();
        const bool bonne = enfant && !dernier && enfant->second > bas && enfant->second <= bornes.Haut;
        const Trou sien{bas, bonne ? enfant->second : bornes.Haut};
        if (enfant && enfant->first != 0) {
            Suit(table, enfant->first, sien, profondeur + 1);
        } else {
            table.Trous.append(sien);
        }
        bas = bonne ? enfant->second : bas;
    }
}

void Releve::LitFeuille(TableRelevee& table, quint32 page, const Feuille& feuille, Trou bornes)
{
    QList<std::pair<int, qint64>> lignes;
    bool croissantes = true;
    for (int i = 0; i < feuille.Page().NbCellules(); ++i) {
        const auto ligne = feuille.Ligne(i);
        const bool dedans = ligne && ligne->first > bornes.Bas && ligne->first <= bornes.Haut;
        if (dedans && PeutEtreDe(table.Table, ligne->second)) {
            croissantes = croissantes && (lignes.isEmpty() || lignes.last().second < ligne->first);
            lignes.append({i, ligne->first});
        }
    }
    const auto bonnes = croissantes ? lignes : Croissantes(lignes);
    table.Brisees += feuille.Page().NbCellules() - bonnes.size();
    for (const auto& [rang, cle] : bonnes) {
        table.Lignes.try_emplace(cle, TableRelevee::Lieu{page, rang});
    }
}

/// Trees that nothing leads to any more, the large ones first.
void Releve::PlaceOrphelines()
{
    const auto manque = [](const TableRelevee& table) { return !table.Trous.isEmpty(); };
    if (std::ranges::none_of(tables_, manque)) {
        return;
    }
    QSet<quint32> menees;
    for (quint32 page = 2; page <= pages_.Nombre(); ++page) {
        const PageArbre lue(pages_, page);
        for (int i = 0; lue.Genre() == GenrePage::Noeud && !vues_.contains(page) && i <= lue.NbCellules();
             ++i) {
            menees.insert(lue.Enfant(i).value_or(std::pair(0U, 0)).first);
        }
    }
    QList<TableRelevee> orphelines;
    for (quint32 page = 2; page <= pages_.Nombre(); ++page) {
        TableRelevee orpheline;
        orpheline.Table.Colonnes = QList<storage::Colonne>(100);
        if (!menees.contains(page) && EstPlausible(orpheline, page, kTout, 0)) {
            Suit(orpheline, page, kTout, 0);
            orphelines.append(orpheline);
        }
    }
    std::ranges::stable_sort(orphelines, std::ranges::greater(),
                             [](const auto& o) { return o.Lignes.size(); });
    for (const TableRelevee& orpheline : orphelines) {
        Adopte(orpheline);
    }
}

/// Gives the rows to the one table that they can belong to.
void Releve::Adopte(const TableRelevee& orpheline)
{
    if (orpheline.Lignes.empty()) {
        return;
    }
    QList<Champs> lignes;
    LecteurLignes lecteur(pages_);
    for (const auto& [cle, lieu] : orpheline.Lignes) {
        lignes.append(lecteur.Lit(lieu));
    }
    QList<TableRelevee*> possibles;
    for (TableRelevee& table : tables_) {
        const auto touche = [&](const Trou& trou) {
            return SeTouchent(trou, orpheline.Lignes.begin()->first, orpheline.Lignes.rbegin()->first);
        };
        const auto convient = [&](const Champs& ligne) { return Convient(table.Table, ligne); };
        if (std::ranges::any_of(table.Trous, touche) && std::ranges::all_of(lignes, convient)) {
            possibles.append(&table);
        }
    }
    const bool cip = SontDesCip(lignes);
    if (possibles.size() > 1) {
        possibles.removeIf(
            [&](TableRelevee* t) { return (t->Table.Colonnes.first().Nom == QLatin1String("CIP")) != cip; });
    }
    if (possibles.size() != 1) {
        sansTable_ += static_cast<qint64>(orpheline.Lignes.size());
        return;
    }
    const auto dansUnTrou = [&](qint64 cle) {
        return std::ranges::any_of(possibles.first()->Trous,
                                   [&](const Trou& trou) { return cle > trou.Bas && cle <= trou.Haut; });
    };
    for (const auto& [cle, lieu] : orpheline.Lignes) {
        if (dansUnTrou(cle)) {
            possibles.first()->Lignes.try_emplace(cle, lieu);
        }
    }
    possibles.first()->Brisees += orpheline.Brisees;
    possibles.first()->Trous.append(orpheline.Trous);
}

} // namespace utile
