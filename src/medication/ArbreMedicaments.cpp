#include "medication/ArbreMedicaments.h"

#include "common/CleDeTri.h"

#include <QBrush>
#include <QFont>
#include <algorithm>

namespace medication {

namespace {

QVariant AspectNormal(int role)
{
    return role == Qt::ForegroundRole ? QVariant(QBrush(Qt::black)) : QVariant();
}

QVariant AspectUtile(int role)
{
    switch (role) {
    case Qt::FontRole: {
        QFont police;
        police.setBold(true);
        return police;
    }
    case Qt::ForegroundRole:
        return QBrush(QColor(3, 75, 162));
    case Qt::BackgroundRole:
        return QBrush(QColor(249, 237, 160));
    default:
        return {};
    }
}

} // namespace

int ArbreMedicaments::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(noeuds_.size());
}

QVariant ArbreMedicaments::data(const QModelIndex& index, int role) const
{
    const Noeud* noeud = index.isValid() ? Lis(index.row()) : nullptr;
    if (!noeud) {
        return {};
    }
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        return noeud->Texte;
    }
    if (role == Qt::UserRole) {
        return noeud->Etiquette;
    }
    return noeud->Utile ? AspectUtile(role) : AspectNormal(role);
}

const Noeud* ArbreMedicaments::Lis(int rang) const
{
    return rang >= 0 && rang < noeuds_.size() ? &noeuds_[rang] : nullptr;
}

void ArbreMedicaments::Remplit(QList<Noeud> noeuds)
{
    beginResetModel();
    noeuds_ = std::move(noeuds);
    endResetModel();
}

void ArbreMedicaments::Retire(int rang)
{
    if (Lis(rang)) {
        beginRemoveRows({}, rang, rang);
        noeuds_.removeAt(rang);
        endRemoveRows();
    }
}

void ArbreMedicaments::Change(int rang, const Noeud& noeud)
{
    if (Lis(rang)) {
        noeuds_[rang] = noeud;
        Q_EMIT dataChanged(index(rang, 0), index(rang, 0));
    }
}

int ArbreMedicaments::Cherche(const QString& recherche) const
{
    // The texts that begin so lie between both keys; the accents decide among them.
    const QStringView cherche = common::SansBlancs(recherche);
    const common::CleDeTri cle = common::Cle(cherche);
    const auto repliee = [](const Noeud& noeud) { return common::Cle(noeud.Texte).Repliee; };
    const auto debut = std::ranges::lower_bound(noeuds_, cle.Repliee, {}, repliee);
    const auto fin = std::ranges::upper_bound(debut, noeuds_.end(), cle.FinRepliee, {}, repliee);
    const auto noeud = std::find_if(
        debut, fin, [&](const Noeud& candidat) { return common::CommencePar(candidat.Texte, cherche); });
    return noeud == fin ? -1 : static_cast<int>(noeud - noeuds_.begin());
}

} // namespace medication
