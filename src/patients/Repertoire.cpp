#include "patients/Repertoire.h"

#include "patients/CleDeTri.h"

#include <algorithm>

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
    const CleDeTri cle = Cle(nom.trimmed());
    const auto debut = static_cast<quint32>(noms_.size());
    noms_.append(nom);
    return {cle.Repliee, cle.Majuscule, index, debut, static_cast<quint32>(nom.size())};
}

void Repertoire::Ajoute(int index, QStringView nom)
{
    rangees_.push_back(Prepare(index, nom));
}

bool Repertoire::Precede(const Rangee& a, quint64 repliee, int index, QStringView nom) const
{
    if (a.Repliee != repliee) {
        return a.Repliee < repliee;
    }
    const QStringView nomDeA = Nom(a);
    if (const auto ordre = CompareReplie(nomDeA.trimmed(), nom.trimmed()); ordre != 0) {
        return ordre < 0;
    }
    const int ordre = nomDeA.compare(nom);
    return ordre != 0 ? ordre < 0 : a.Index < index;
}

void Repertoire::Trie()
{
    std::ranges::sort(rangees_, [this](const Rangee& a, const Rangee& b) {
        return Precede(a, b.Repliee, b.Index, Nom(b));
    });
}

int Repertoire::RangDe(int index) const
{
    const auto place = std::ranges::find(rangees_, index, &Rangee::Index);
    return place == rangees_.end() ? -1 : static_cast<int>(place - rangees_.begin());
}

int Repertoire::Place(int index, QStringView nom) const
{
    const quint64 repliee = Cle(nom.trimmed()).Repliee;
    const auto place = std::ranges::partition_point(
        rangees_, [&](const Rangee& rangee) { return Precede(rangee, repliee, index, nom); });
    return static_cast<int>(place - rangees_.begin());
}

void Repertoire::Insere(int rang, int index, QStringView nom)
{
    rangees_.insert(rangees_.begin() + rang, Prepare(index, nom));
}

int Repertoire::Cherche(QStringView texte) const
{
    const QStringView cherche = texte.trimmed();
    if (cherche.isEmpty()) {
        return -1;
    }
    // The names that begin so lie between both keys; the accents decide among them.
    const CleDeTri cle = Cle(cherche);
    auto place = std::ranges::lower_bound(rangees_, cle.Repliee, {}, &Rangee::Repliee);
    for (; place != rangees_.end() && place->Repliee <= cle.FinRepliee; ++place) {
        if (((place->Majuscule ^ cle.Majuscule) & cle.Masque) == 0 &&
            CommencePar(Nom(*place).trimmed(), cherche)) {
            return static_cast<int>(place - rangees_.begin());
        }
    }
    return -1;
}

} // namespace patients
