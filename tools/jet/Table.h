#pragma once

#include "Fichier.h"
#include "storage/PlanJet.h"

#include <functional>

namespace jet {

class Ebauche;

/// One table of an open file, read row by row in stored order.
class Table
{
public:
    /// Throws `Defaut` when its definition cannot be read.
    Table(const Fichier& fichier, MdbCatalogEntry& entree);

    storage::TableJet Description() const;
    /// The rows that the file declares.
    std::uint32_t Lignes() const { return table_->num_rows; }

    /// Writes the rows into the table of `plan`; `avance` hears the number of rows now and then. Throws
    /// `Defaut`, also when their number is not the declared one.
    void Ecris(Ebauche& ebauche, const storage::PlanJet& plan,
               const std::function<void(std::uint32_t)>& avance);
    /// Takes every row apart without writing any. Throws `Defaut` as `Ecris` does.
    void Verifie();

private:
    struct Libere
    {
        void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
    };
    template <typename Recoit> void Parcourt(Recoit&& recoit);
    template <typename Recoit> void ParcourtPage(std::uint32_t page, Recoit&& recoit);
    Emplacement Suis(const Emplacement& pointeur) const;
    const MdbColumn& Colonne(qsizetype rang) const;
    void Decoupe(const Emplacement& ligne);
    std::size_t FinDesFixes(const Emplacement& ligne) const;
    void OteAbsents(int rangs, std::size_t finDesFixes);
    void EcrisLigne(Ebauche& ebauche, const storage::PlanJet& plan, const Emplacement& ligne);
    void EcrisValeur(Ebauche& ebauche, int vers, const MdbColumn& colonne, const MdbField& champ);
    void EcrisOctets(Ebauche& ebauche, int vers, int type, Octets valeur);
    void EcrisFixe(Ebauche& ebauche, int vers, int type, Octets valeur);

    const Fichier& fichier_;
    std::unique_ptr<MdbTableDef, Libere> table_;
    std::vector<MdbField> champs_;
    std::vector<std::string> textes_; ///< of the row in hand, by our column
    std::uint32_t dernierCompteur_ = 0;
    int rangs_ = 0; ///< columns that the table ever had
    std::uint32_t lues_ = 0;
};

} // namespace jet
