#include "prescription/ListeJournal.h"

#include "prescription/JournalEntrees.h"

namespace prescription {

ListeJournal::ListeJournal(const JournalEntrees& journal, RangJournal rang, QObject* parent)
    : QAbstractListModel(parent), journal_(journal), rang_(rang)
{}

int ListeJournal::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(numeros_.size());
}

QVariant ListeJournal::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const int numero = Numero(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return rang_ == RangJournal::Date ? QLatin1Char(' ') + journal_.Date(numero)
                                          : journal_.Patient(numero);
    case Qt::UserRole:
        return numerotes_ ? numero : 0;
    default:
        return {};
    }
}

QModelIndexList ListeJournal::match(const QModelIndex& debut, int role, const QVariant& valeur, int nombre,
                                    Qt::MatchFlags facon) const
{
    const bool date = rang_ == RangJournal::Date && role == Qt::DisplayRole;
    return QAbstractListModel::match(debut, role, date ? QLatin1Char(' ') + valeur.toString() : valeur,
                                     nombre, facon);
}

void ListeJournal::Remplit(std::vector<int> numeros, bool numerotes)
{
    beginResetModel();
    numeros_ = std::move(numeros);
    numerotes_ = numerotes;
    endResetModel();
}

} // namespace prescription
