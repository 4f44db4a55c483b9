#include "Table.h"

#include "Defaut.h"
#include "Ebauche.h"
#include "Valeurs.h"

#include <algorithm>
#include <bit>

namespace jet {

using storage::TypeJet;

namespace {

constexpr std::size_t kCompteurJet3 = 16;
constexpr std::size_t kCompteurJet4 = 20;
constexpr std::size_t kRangsJet3 = 21;
constexpr std::size_t kRangsJet4 = 41;
constexpr unsigned int kColonnesMax = 255;
constexpr std::uint32_t kEntreAvances = 500;

TypeJet TypeDe(const MdbColumn& colonne)
{
    switch (colonne.col_type) {
    case MDB_BOOL:
        return TypeJet::OuiNon;
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
        return colonne.is_long_auto ? TypeJet::Compteur : TypeJet::Entier;
    case MDB_FLOAT:
        return TypeJet::Simple;
    case MDB_DOUBLE:
    case MDB_MONEY:
        return TypeJet::Double;
    case MDB_DATETIME:
        return TypeJet::Date;
    case MDB_TEXT:
    case MDB_MEMO:
        return TypeJet::Texte;
    default:
        return TypeJet::Autre;
    }
}

std::size_t TailleFixe(int type)
{
    switch (type) {
    case MDB_BYTE:
        return 1;
    case MDB_INT:
        return 2;
    case MDB_LONGINT:
    case MDB_FLOAT:
        return 4;
    default:
        return 8;
    }
}

double Double(Octets valeur)
{
    const std::uint64_t haut = Nombre(&valeur[4], 4);
    return std::bit_cast<double>(haut << 32 | Nombre(valeur.data(), 4));
}

/// Ten-thousandths.
double Monnaie(Octets valeur)
{
    constexpr double kDixMillieme = 10000;
    const std::uint64_t haut = Nombre(&valeur[4], 4);
    return static_cast<double>(static_cast<std::int64_t>(haut << 32 | Nombre(valeur.data(), 4))) /
           kDixMillieme;
}

MdbTableDef* LitDefinition(MdbCatalogEntry& entree)
{
    MdbTableDef* table = mdb_read_table(&entree);
    if (!table || !mdb_read_columns(table)) {
        throw Defaut("table without a definition");
    }
    return table;
}

} // namespace

Table::Table(const Fichier& fichier, MdbCatalogEntry& entree) : fichier_(fichier)
{
    const Octets page = fichier.LitPage(static_cast<std::uint32_t>(entree.table_pg));
    dernierCompteur_ = Nombre(&page[fichier.Jet3() ? kCompteurJet3 : kCompteurJet4], 4);
    rangs_ = static_cast<int>(Nombre(&page[fichier.Jet3() ? kRangsJet3 : kRangsJet4], 2));
    table_.reset(LitDefinition(entree));
    if (table_->num_cols == 0 || table_->num_cols > kColonnesMax ||
        table_->columns->len != table_->num_cols) {
        throw Defaut("columns missing");
    }
    champs_.resize(table_->num_cols);
}

const MdbColumn& Table::Colonne(qsizetype rang) const
{
    return *static_cast<const MdbColumn*>(g_ptr_array_index(table_->columns, rang));
}

storage::TableJet Table::Description() const
{
    storage::TableJet description{QString::fromUtf8(table_->name), {}};
    for (qsizetype i = 0; i < static_cast<qsizetype>(table_->num_cols); ++i) {
        description.Colonnes.append({QString::fromUtf8(Colonne(i).name), TypeDe(Colonne(i))});
    }
    return description;
}

template <typename Recoit> void Table::Parcourt(Recoit&& recoit)
{
    lues_ = 0;
    mdb_rewind_table(table_.get());
    while (mdb_read_next_dpg(table_.get()) != 0) {
        ParcourtPage(table_->cur_phys_pg, recoit);
    }
    if (lues_ != table_->num_rows) {
        throw Defaut("rows missing");
    }
}

template <typename Recoit> void Table::ParcourtPage(std::uint32_t page, Recoit&& recoit)
{
    const std::uint32_t nombre = fichier_.NombreDeLignes(fichier_.Page());
    for (std::uint32_t i = 0; i < nombre; ++i) {
        const Emplacement ligne = fichier_.Trouve(fichier_.Page(), i);
        if (ligne.Absente) {
            continue;
        }
        if (++lues_ > table_->num_rows) {
            throw Defaut("more rows than declared");
        }
        recoit(ligne.Deplacee ? Suis(ligne) : ligne);
        if (ligne.Deplacee) {
            fichier_.LitPage(page);
        }
    }
}

/// A row that grew stands elsewhere: its page becomes the one in hand.
Emplacement Table::Suis(const Emplacement& pointeur) const
{
    if (pointeur.Longueur < 4) {
        throw Defaut("pointer cut");
    }
    const std::uint32_t adresse = Nombre(&fichier_.Page()[pointeur.Debut], 4);
    return fichier_.Trouve(fichier_.LitPage(adresse >> 8), adresse & 0xFF);
}

void Table::Verifie()
{
    Parcourt([this](const Emplacement& ligne) { Decoupe(ligne); });
}

void Table::Ecris(Ebauche& ebauche, const storage::PlanJet& plan,
                  const std::function<void(std::uint32_t)>& avance)
{
    ebauche.Commence(plan.Table);
    textes_.resize(static_cast<std::size_t>(plan.Sources.size()));
    Parcourt([&](const Emplacement& ligne) {
        EcrisLigne(ebauche, plan, ligne);
        if (lues_ % kEntreAvances == 0) {
            avance(lues_);
        }
    });
    ebauche.Finit(plan.Table, dernierCompteur_);
    avance(lues_);
}

void Table::Decoupe(const Emplacement& ligne)
{
    const int champs =
        mdb_crack_row(table_.get(), static_cast<int>(ligne.Debut), ligne.Longueur, champs_.data());
    if (champs <= 0 || champs > std::max(rangs_, static_cast<int>(table_->num_cols))) {
        throw Defaut("row that cannot be taken apart");
    }
    OteAbsents(champs, FinDesFixes(ligne));
}

/// How far the numbers of the row in hand reach: to its first text.
std::size_t Table::FinDesFixes(const Emplacement& ligne) const
{
    const auto* debut = &fichier_.Page()[ligne.Debut];
    for (std::size_t i = 0; i < champs_.size(); ++i) {
        const MdbColumn& colonne = Colonne(static_cast<qsizetype>(i));
        if (!colonne.is_fixed && colonne.var_col_num == 0 && champs_[i].value) {
            return static_cast<std::size_t>(static_cast<const unsigned char*>(champs_[i].value) - debut);
        }
    }
    return 0;
}

/// A row has the columns that the table had when it was written, those taken away since among them: one that
/// came later is null in it. A damaged number of columns would make nulls too, where the row has values.
void Table::OteAbsents(int rangs, std::size_t finDesFixes)
{
    const std::size_t tete = fichier_.Jet3() ? 1 : 2;
    for (std::size_t i = 0; i < champs_.size(); ++i) {
        const MdbColumn& colonne = Colonne(static_cast<qsizetype>(i));
        MdbField& champ = champs_[i];
        const bool presente = colonne.col_num < rangs;
        const bool occupee = colonne.is_fixed
                                 ? colonne.col_type != MDB_BOOL &&
                                       tete + static_cast<std::size_t>(colonne.fixed_offset) < finDesFixes
                                 : champ.value != nullptr;
        if (!presente && occupee) {
            throw Defaut("row with more values than columns");
        }
        if (presente && !champ.value) {
            throw Defaut("row with fewer values than columns");
        }
        if (!presente) {
            champ = {nullptr, 0, 0, 1, champ.is_fixed, champ.colnum, champ.offset};
        }
    }
}

void Table::EcrisLigne(Ebauche& ebauche, const storage::PlanJet& plan, const Emplacement& ligne)
{
    Decoupe(ligne);
    for (qsizetype i = 0; i < plan.Sources.size(); ++i) {
        const qsizetype source = plan.Sources[i];
        EcrisValeur(ebauche, static_cast<int>(i), Colonne(source), champs_[static_cast<std::size_t>(source)]);
    }
    ebauche.AjouteLigne();
}

void Table::EcrisValeur(Ebauche& ebauche, int vers, const MdbColumn& colonne, const MdbField& champ)
{
    if (colonne.col_type == MDB_BOOL) {
        ebauche.LieEntier(vers, champ.is_null ? 0 : 1);
        return;
    }
    if (champ.is_null) {
        return;
    }
    const Octets page = fichier_.Page();
    const auto* debut = static_cast<const unsigned char*>(champ.value);
    if (champ.siz < 0 || debut < page.data() || debut + champ.siz > page.data() + page.size()) {
        throw Defaut("value out of its page");
    }
    const Octets valeur(debut, static_cast<std::size_t>(champ.siz));
    if (TypeDe(colonne) == TypeJet::Autre) {
        EcrisOctets(ebauche, vers, colonne.col_type, valeur);
        return;
    }
    if (colonne.col_type != MDB_TEXT && colonne.col_type != MDB_MEMO) {
        EcrisFixe(ebauche, vers, colonne.col_type, valeur);
        return;
    }
    std::string& texte = textes_[static_cast<std::size_t>(vers)];
    texte.clear();
    if (colonne.col_type == MDB_MEMO && !valeur.empty()) {
        fichier_.Texte().Ajoute(texte, fichier_.LitMemo(valeur));
    } else {
        fichier_.Texte().Ajoute(texte, valeur);
    }
    ebauche.LieTexte(vers, texte);
}

/// A picture, a binary value, a decimal: what no column that we read holds.
void Table::EcrisOctets(Ebauche& ebauche, int vers, int type, Octets valeur)
{
    std::string& octets = textes_[static_cast<std::size_t>(vers)];
    if (type == MDB_OLE) {
        const std::vector<unsigned char> longs = fichier_.LitMemo(valeur);
        octets.assign(longs.begin(), longs.end());
    } else {
        octets.assign(valeur.begin(), valeur.end());
    }
    ebauche.LieOctets(vers, octets);
}

void Table::EcrisFixe(Ebauche& ebauche, int vers, int type, Octets valeur)
{
    if (valeur.size() != TailleFixe(type)) {
        throw Defaut("number of another size");
    }
    switch (type) {
    case MDB_BYTE:
        ebauche.LieEntier(vers, valeur[0]);
        break;
    case MDB_INT:
        ebauche.LieEntier(vers, static_cast<std::int16_t>(Nombre(valeur.data(), 2)));
        break;
    case MDB_LONGINT:
        ebauche.LieEntier(vers, static_cast<std::int32_t>(Nombre(valeur.data(), 4)));
        break;
    case MDB_FLOAT:
        ebauche.LieReel(vers, DoubleDe(std::bit_cast<float>(Nombre(valeur.data(), 4))));
        break;
    case MDB_DATETIME:
        textes_[static_cast<std::size_t>(vers)] = TexteDeDate(Double(valeur));
        ebauche.LieTexte(vers, textes_[static_cast<std::size_t>(vers)]);
        break;
    case MDB_MONEY:
        ebauche.LieReel(vers, Monnaie(valeur));
        break;
    default:
        ebauche.LieReel(vers, Double(valeur));
    }
}

} // namespace jet
