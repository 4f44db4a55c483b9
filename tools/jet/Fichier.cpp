#include "Fichier.h"

#include "Defaut.h"

namespace jet {

namespace {

constexpr std::size_t kTeteMemo = 12;
constexpr std::size_t kMemoMax = 64UL * 1024 * 1024; // no practice writes a longer one
constexpr std::uint32_t kMemoEnPlace = 0x80000000;
constexpr std::uint32_t kMemoUnePage = 0x40000000;
constexpr std::uint32_t kMasqueLongueur = 0x3FFFFFFF;
constexpr std::uint32_t kMasqueDebut = 0x1FFF;
constexpr std::uint32_t kAbsente = 0x8000;
constexpr std::uint32_t kDeplacee = 0x4000;

MdbHandle* Ouvre(const std::string& chemin)
{
    MdbHandle* mdb = mdb_open(chemin.c_str(), MDB_NOFLAGS);
    if (!mdb) {
        throw std::runtime_error("cannot open the file");
    }
    return mdb;
}

} // namespace

Fichier::Fichier(const std::string& chemin)
    : mdb_(Ouvre(chemin)), textes_(IS_JET3(mdb_) ? mdb_->f->code_page : 0)
{}

Octets Fichier::LitPage(std::uint32_t page) const
{
    if (mdb_read_pg(Mdb(), page) != mdb_->fmt->pg_size) {
        throw Defaut("page out of the file");
    }
    return Page();
}

Octets Fichier::LitAutrePage(std::uint32_t page) const
{
    if (mdb_read_alt_pg(Mdb(), page) != mdb_->fmt->pg_size) {
        throw Defaut("page out of the file");
    }
    return {mdb_->alt_pg_buf, Taille()};
}

std::uint32_t Fichier::NombreDeLignes(Octets page) const
{
    const std::uint32_t nombre = Nombre(&page[mdb_->fmt->row_count_offset], 2);
    if (mdb_->fmt->row_count_offset + 2 + 2 * nombre > page.size()) {
        throw Defaut("more rows than a page holds");
    }
    return nombre;
}

Emplacement Fichier::Trouve(Octets page, std::uint32_t ligne) const
{
    if (ligne >= NombreDeLignes(page)) {
        throw Defaut("no such row");
    }
    const unsigned char* places = &page[mdb_->fmt->row_count_offset + 2U];
    const std::uint32_t place = Nombre(places + 2UL * ligne, 2);
    const std::size_t debut = place & kMasqueDebut;
    const std::size_t fin = ligne == 0 ? page.size() : Nombre(places + 2UL * (ligne - 1), 2) & kMasqueDebut;
    if (debut > fin || fin > page.size()) {
        throw Defaut("row out of its page");
    }
    return {debut, fin - debut, (place & kAbsente) != 0, (place & kDeplacee) != 0};
}

Octets Fichier::Morceau(std::uint32_t adresse) const
{
    const Octets page = LitAutrePage(adresse >> 8);
    const Emplacement ligne = Trouve(page, adresse & 0xFF);
    return page.subspan(ligne.Debut, ligne.Longueur);
}

std::vector<unsigned char> Fichier::LitMemo(Octets champ) const
{
    if (champ.size() < kTeteMemo) {
        throw Defaut("memo without its head");
    }
    const std::uint32_t tete = Nombre(champ.data(), 4);
    const std::size_t longueur = tete & kMasqueLongueur;
    if (longueur > kMemoMax) {
        throw Defaut("memo too long");
    }
    std::vector<unsigned char> memo;
    const auto ajoute = [&](Octets morceau) {
        const std::size_t utile = std::min(morceau.size(), longueur - memo.size());
        memo.insert(memo.end(), morceau.begin(), morceau.begin() + static_cast<std::ptrdiff_t>(utile));
    };
    std::uint32_t adresse = Nombre(&champ[4], 4);
    if ((tete & kMemoEnPlace) != 0) {
        ajoute(champ.subspan(kTeteMemo));
    } else if ((tete & kMemoUnePage) != 0) {
        ajoute(Morceau(adresse));
    } else {
        while (memo.size() < longueur) {
            const Octets morceau = Morceau(adresse);
            if (morceau.size() <= 4) {
                throw Defaut("empty link of a memo");
            }
            adresse = Nombre(morceau.data(), 4);
            ajoute(morceau.subspan(4));
        }
    }
    if (memo.size() != longueur) {
        throw Defaut("memo shorter than declared");
    }
    return memo;
}

} // namespace jet
