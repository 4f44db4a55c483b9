#include "medication/ArbreMedicaments.h"

#include "medication/Tri.h"

#include <QBrush>
#include <QFont>
#include <algorithm>

namespace medication {

namespace {

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

// The rule of the search: the text cut to the length of what is searched, trimmed, in capitals.
bool Commence(const QString& texte, const QString& capitales)
{
    return Capitales(QStringView(texte).left(capitales.size()).trimmed()) == capitales;
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
    return noeud->Utile ? AspectUtile(role) : QVariant();
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

int ArbreMedicaments::Cherche(const QString& recherche) const
{
    const QString capitales = Capitales(QStringView(recherche).trimmed());
    const QString cle = CleTri(capitales);
    const auto debut = [&](const Noeud& noeud) { return CleTri(noeud.Texte).left(cle.size()); };
    auto noeud = std::ranges::lower_bound(noeuds_, cle, {}, debut);
    while (noeud != noeuds_.end() && debut(*noeud) == cle) {
        if (Commence(noeud->Texte, capitales)) {
            return static_cast<int>(noeud - noeuds_.begin());
        }
        ++noeud;
    }
    return -1;
}

} // namespace medication
