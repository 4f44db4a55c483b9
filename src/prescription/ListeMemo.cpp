#include "prescription/ListeMemo.h"

#include "common/CleDeTri.h"

#include <algorithm>
#include <numeric>

namespace prescription {

namespace {

constexpr qsizetype kCoupe = 3; // characters before the title, right up to number 99
constexpr int kDernierNumero = 99;

} // namespace

int ListeMemo::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(montres_.size());
}

QVariant ListeMemo::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return Texte(index.row());
    case Qt::UserRole:
        return ALD(index.row());
    default:
        return {};
    }
}

void ListeMemo::Remplit(const QList<Memorisee>& memorisees)
{
    beginResetModel();
    elements_.clear();
    elements_.reserve(memorisees.size());
    for (const Memorisee& memorisee : memorisees) {
        elements_.append(
            {memorisee, static_cast<int>(elements_.size()) + 1, common::Replie(memorisee.Cle.Titre)});
    }
    montres_.resize(elements_.size());
    std::iota(montres_.begin(), montres_.end(), 0);
    endResetModel();
}

void ListeMemo::Filtre(const QString& recherche)
{
    const QString repliee = common::Replie(recherche.trimmed());
    beginResetModel();
    montres_.clear();
    for (int place = 0; place < elements_.size(); ++place) {
        if (elements_[place].Replie.contains(repliee)) {
            montres_.append(place);
        }
    }
    endResetModel();
}

void ListeMemo::Retire(int rang)
{
    const Element* retiree = Lis(rang);
    if (!retiree) {
        return;
    }
    const QString titre = retiree->Memorisee.Cle.Titre;
    for (int place = static_cast<int>(elements_.size()) - 1; place >= 0; --place) {
        if (elements_[place].Memorisee.Cle.Titre == titre) {
            RetirePlace(place);
        }
    }
}

void ListeMemo::RetirePlace(int place)
{
    const int rang = static_cast<int>(montres_.indexOf(place));
    if (rang >= 0) {
        beginRemoveRows({}, rang, rang);
        montres_.removeAt(rang);
    }
    elements_.removeAt(place);
    for (int& montre : montres_) {
        montre -= montre > place ? 1 : 0;
    }
    if (rang >= 0) {
        endRemoveRows();
    }
}

const ListeMemo::Element* ListeMemo::Lis(int rang) const
{
    return rang >= 0 && rang < montres_.size() ? &elements_[montres_[rang]] : nullptr;
}

QString ListeMemo::Texte(int rang) const
{
    const Element* element = Lis(rang);
    return element ? QString::number(element->Numero) + QStringLiteral("- ") + element->Memorisee.Cle.Titre
                   : QString();
}

QString ListeMemo::TitreChoisi(int rang) const
{
    return Texte(rang).mid(kCoupe).trimmed();
}

std::optional<CleMemo> ListeMemo::Cle(int rang) const
{
    const Element* element = Lis(rang);
    return element && element->Numero <= kDernierNumero ? std::optional(element->Memorisee.Cle)
                                                        : std::nullopt;
}

quint8 ListeMemo::ALD(int rang) const
{
    const Element* element = Lis(rang);
    return element ? element->Memorisee.ALD : quint8(0);
}

int ListeMemo::Numero(int rang) const
{
    const Element* element = Lis(rang);
    return element ? element->Numero : 0;
}

int ListeMemo::RangDe(int numero) const
{
    const auto porte = [&](int place) { return elements_[place].Numero == numero; };
    const auto trouve = std::ranges::find_if(montres_, porte);
    return trouve == montres_.end() ? -1 : static_cast<int>(trouve - montres_.begin());
}

} // namespace prescription
