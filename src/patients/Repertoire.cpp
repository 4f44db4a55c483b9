#include "patients/Repertoire.h"

#include "patients/CleDeTri.h"
#include "patients/TriParCle.h"

#include <algorithm>
#include <iterator>

namespace patients {

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
    const CleDeTri cle = Cle(SansBlancs(nom));
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
    if (const auto ordre = CompareReplie(SansBlancs(nomDeA), SansBlancs(nomDeB)); ordre != 0) {
        return ordre < 0;
    }
    return nomDeA.compare(nomDeB) < 0;
}

void Repertoire::Trie()
{
    std::vector<Repere> ordre = TrieParCle(Reperes());
    std::vector<Rangee> triees;
    triees.reserve(rangees_.size());
    std::ranges::transform(ordre, std::back_inserter(triees),
                           [this](const Repere& repere) { return rangees_[repere.Place]; });
    rangees_ = std::move(triees);
    TrieLesEgalites();
}

std::vector<Repere> Repertoire::Reperes() const
{
    std::vector<Repere> reperes;
    reperes.reserve(rangees_.size());
    for (const Rangee& rangee : rangees_) {
        reperes.push_back({rangee.Repliee, static_cast<quint32>(reperes.size())});
    }
    return reperes;
}

void Repertoire::TrieLesEgalites()
{
    const auto precede = [this](const Rangee& a, const Rangee& b) { return Precede(a, b, Nom(b)); };
    for (auto debut = rangees_.begin(); debut != rangees_.end();) {
        const auto fin = std::find_if(debut, rangees_.end(),
                                      [&](const Rangee& rangee) { return rangee.Repliee != debut->Repliee; });
        if (fin - debut > 1) {
            std::sort(debut, fin, precede);
        }
        debut = fin;
    }
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
    const CleDeTri cle = Cle(cherche);
    auto place = std::ranges::lower_bound(rangees_, cle.Repliee, {}, &Rangee::Repliee);
    for (; place != rangees_.end() && place->Repliee <= cle.FinRepliee; ++place) {
        if (((place->Majuscule ^ cle.Majuscule) & cle.Masque) == 0 &&
            CommencePar(SansBlancs(Nom(*place)), cherche)) {
            return static_cast<int>(place - rangees_.begin());
        }
    }
    return -1;
}

} // namespace patients
