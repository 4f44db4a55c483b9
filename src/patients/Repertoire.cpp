#include "patients/Repertoire.h"

#include "common/CleDeTri.h"
#include "common/TriParCle.h"

#include <algorithm>
#include <utility>

namespace patients {

using common::SansBlancs;

Repertoire::Rangee Repertoire::Prepare(int index, QStringView nom, quint32 debut)
{
    const common::CleDeTri cle = common::Cle(SansBlancs(nom));
    return {cle.Repliee, cle.Suite, cle.Majuscule, index, debut, static_cast<quint32>(nom.size())};
}

void Repertoire::Remplit(storage::Textes noms)
{
    rangees_.clear();
    rangees_.reserve(noms.Rangees.size());
    for (const storage::Textes::Rangee& lue : noms.Rangees) {
        rangees_.push_back(Prepare(static_cast<int>(lue.Cle), noms.Texte(lue), lue.Debut));
    }
    noms_ = std::move(noms.Bloc);
    Trie();
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

int Repertoire::Place(int index, QStringView nom) const
{
    const Rangee nouvelle = Prepare(index, nom, 0);
    const auto place = std::ranges::partition_point(
        rangees_, [&](const Rangee& rangee) { return Precede(rangee, nouvelle, nom); });
    return static_cast<int>(place - rangees_.begin());
}

void Repertoire::Insere(int rang, int index, QStringView nom)
{
    rangees_.insert(rangees_.begin() + rang, Prepare(index, nom, static_cast<quint32>(noms_.size())));
    noms_.append(nom);
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
