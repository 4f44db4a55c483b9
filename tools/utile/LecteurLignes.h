#pragma once

#include "Releve.h"

namespace utile {

/// Reads the rows of a `Releve`; those of one page behind one another without judging it again.
class LecteurLignes
{
public:
    explicit LecteurLignes(const PagesSqlite& pages) : pages_(pages) {}

    /// The fields of a row that the `Releve` has found.
    Champs Lit(const TableRelevee::Lieu& lieu)
    {
        if (!feuille_ || page_ != lieu.Page) {
            feuille_.emplace(pages_, lieu.Page);
            page_ = lieu.Page;
        }
        return feuille_->Ligne(lieu.Rang)->second;
    }

private:
    const PagesSqlite& pages_;
    std::optional<Feuille> feuille_;
    quint32 page_ = 0;
};

} // namespace utile
