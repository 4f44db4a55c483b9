#include "patients/Repertoire.h"

#include "common/CleDeTri.h"
#include "common/TriParCle.h"

#include <algorithm>

namespace patients {

using common::SansBlancs;

void Repertoire::Vide()
{
    noms_.clear();
    rangees_.clear();
}

void Repertoire::Reserve(int nombre)
{
    constexpr int kLongueurUsuelle = 20;
    rangees_.reserve(size_t(nombre));
    noms_.reserve(qsizetype(nombre) * kLongueurUsuelle);
}

Repertoire::Rangee Repertoire::Prepare(int index, QStringView nom)
{
    const common::CleDeTri cle = common::Cle(SansBlancs(nom));
    return {cle.Repliee, cle.Suite, cle.Majuscule, index, 0, static_cast<quint32>(nom.size())};
}

void Repertoire::Ajoute(int index, QStringView nom)
{
    Rangee& rangee = rangees_.emplace_back(Prepare(index, nom));
    rangee.Debut = static_cast<quint32>(noms_.size());
    noms_.append(nom);
}

bool Repertoire::Precede(const Rangee& a, const Rangee& b, QStringView nomDeB) const
{
    if (a.Repliee != b.Repliee) {
        return a.Repliee < b.Repliee;
    }
    if (a.Suite != b.Suite) {
        return a.Suite < b.Suite;
    }
    const QStringView nomDeA = Nom(a);
    if (nomDeA == nomDeB) {
        return a.Index < b.Index;
    }
    if (const auto ordre = common::CompareReplie(SansBlancs(nomDeA), SansBlancs(nomDeB)); ordre != 0) {
        return ordre < 0;
    }
    return nomDeA.compare(nomDeB) < 0;
}

void Repertoire::Trie()
{
    common::TrieParCle(rangees_, &Rangee::Repliee,
                       [this](const Rangee& a, const Rangee& b) { return Precede(a, b, Nom(b)); });
}

int Repertoire::RangDe(int index) const
{
    const auto place = std::ranges::find(rangees_, index, &Rangee::Index);
    return place == rangees_.end() ? -1 : static_cast<int>(place - rangees_.begin());
}

int Repertoire::Place(int index, QStringView nom) const
{
    const Rangee nouvelle = Prepare(index, nom);
    const auto place = std::ranges::partition_point(
        rangees_, [&](const Rangee& rangee) { return Precede(rangee, nouvelle, nom); });
    return static_cast<int>(place - rangees_.begin());
}

void Repertoire::Insere(int rang, int index, QStringView nom)
{
    Rangee rangee = Prepare(index, nom);
    rangee.Debut = static_cast<quint32>(noms_.size());
    noms_.append(nom);
    rangees_.insert(rangees_.begin() + rang, rangee);
}

int Repertoire::Cherche(QStringView texte) const
{
    const QStringView cherche = SansBlancs(texte);
    if (cherche.isEmpty()) {
        return -1;
    }
    // The names that begin so lie between both keys; the accents decide among them.
    const common::CleDeTri cle = common::Cle(cherche);
    auto place = std::ranges::lower_bound(rangees_, cle.Repliee, {}, &Rangee::Repliee);
    for (; place != rangees_.end() && place->Repliee <= cle.FinRepliee; ++place) {
        if (((place->Majuscule ^ cle.Majuscule) & cle.Masque) == 0 &&
            common::CommencePar(SansBlancs(Nom(*place)), cherche)) {
            return static_cast<int>(place - rangees_.begin());
        }
    }
    return -1;
}

} // namespace patients
