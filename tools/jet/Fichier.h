#pragma once

#include "Libmdb.h"
#include "Octets.h"
#include "Textes.h"

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace jet {

/// Where a row stands on its page.
struct Emplacement
{
    std::size_t Debut = 0;
    std::size_t Longueur = 0;
    bool Absente = false;  ///< deleted, or the target of another place's pointer
    bool Deplacee = false; ///< four bytes that say where the row stands
};

/// An open Jet file. Throws `Defaut` on what no sound file holds.
class Fichier
{
public:
    /// Throws `std::runtime_error` when the file cannot be opened.
    explicit Fichier(const std::string& chemin);

    MdbHandle* Mdb() const { return mdb_.get(); }
    const Textes& Texte() const { return textes_; }
    bool Jet3() const { return IS_JET3(mdb_); }

    /// Whether the disk failed to give bytes of the file: what seems damaged is not then.
    bool EnPanne() const { return std::ferror(mdb_->f->stream) != 0; }

    /// Reads the page into the library's first buffer, which `mdb_crack_row` reads; gives its bytes.
    Octets LitPage(std::uint32_t page) const;
    /// The same with the second buffer, which leaves the first alone.
    Octets LitAutrePage(std::uint32_t page) const;
    /// The first buffer, whichever page it holds.
    Octets Page() const { return {mdb_->pg_buf, Taille()}; }

    std::uint32_t NombreDeLignes(Octets page) const;
    Emplacement Trouve(Octets page, std::uint32_t ligne) const;

    /// The bytes of a memo from the twelve or more that stand in its row.
    std::vector<unsigned char> LitMemo(Octets champ) const;

private:
    struct Ferme
    {
        void operator()(MdbHandle* mdb) const { mdb_close(mdb); }
    };
    std::size_t Taille() const { return static_cast<std::size_t>(mdb_->fmt->pg_size); }
    Octets Morceau(std::uint32_t adresse) const;

    std::unique_ptr<MdbHandle, Ferme> mdb_;
    Textes textes_;
};

} // namespace jet
