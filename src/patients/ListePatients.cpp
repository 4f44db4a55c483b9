#include "patients/ListePatients.h"

#include "storage/Base.h"

#include <utility>

namespace patients {

int ListePatients::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : repertoire_.Nombre();
}

QVariant ListePatients::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return Texte(index.row());
    case Qt::UserRole:
        return repertoire_.Index(index.row());
    default:
        return {};
    }
}

QString ListePatients::Texte(int rang) const
{
    return QLatin1String("  ") + repertoire_.Nom(rang).toString();
}

void ListePatients::Charge(storage::Base& medoc)
{
    storage::Textes noms =
        medoc.LitTextes(QStringLiteral("Patients"), QStringLiteral("Index"), QStringLiteral("NomPatient"));
    beginResetModel();
    repertoire_.Remplit(std::move(noms));
    endResetModel();
}

int ListePatients::Ajoute(int index, const QString& nom)
{
    const int rang = repertoire_.Place(index, nom);
    beginInsertRows({}, rang, rang);
    repertoire_.Insere(rang, index, nom);
    endInsertRows();
    return rang;
}

void ListePatients::Retire(int rang)
{
    beginRemoveRows({}, rang, rang);
    repertoire_.Retire(rang);
    endRemoveRows();
}

} // namespace patients
