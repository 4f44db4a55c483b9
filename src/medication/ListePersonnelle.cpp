#include "medication/ListePersonnelle.h"

namespace medication {

namespace {

EntreePersonnelle Entree(const QString& texte, const QString& titre)
{
    return {QStringLiteral("  ") + texte, titre};
}

} // namespace

int ListePersonnelle::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(entrees_.size());
}

QVariant ListePersonnelle::data(const QModelIndex& index, int role) const
{
    const EntreePersonnelle* entree = index.isValid() ? Lis(index.row()) : nullptr;
    return entree && role == Qt::DisplayRole ? QVariant(entree->Texte) : QVariant();
}

const EntreePersonnelle* ListePersonnelle::Lis(int rang) const
{
    return rang >= 0 && rang < entrees_.size() ? &entrees_[rang] : nullptr;
}

void ListePersonnelle::Remplit(const QStringList& titres)
{
    beginResetModel();
    entrees_.clear();
    if (!titres.isEmpty()) {
        entrees_.append(EntreePersonnelle{});
    }
    for (const QString& titre : titres) {
        entrees_.append(Entree(titre, titre));
    }
    endResetModel();
}

void ListePersonnelle::Ajoute(const QString& tape, const QString& titre)
{
    const int rang = rowCount();
    beginInsertRows({}, rang, rang);
    entrees_.append(Entree(tape, titre));
    endInsertRows();
}

void ListePersonnelle::Retire(int rang)
{
    if (Lis(rang)) {
        beginRemoveRows({}, rang, rang);
        entrees_.removeAt(rang);
        endRemoveRows();
    }
}

} // namespace medication
