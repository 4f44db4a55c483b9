#pragma once

#include "patients/Repertoire.h"

#include <QAbstractListModel>

namespace storage {
class Base;
}

namespace patients {

/// The patients of the data directory as `LstPatient` shows them. Qt::DisplayRole gives two blanks and
/// the name, Qt::UserRole the patient's key.
class ListePatients : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Reads the whole table again. Throws `Erreur`; the list then stays as it was.
    void Charge(storage::Base& medoc);
    /// Adds one patient at his place and gives his row.
    int Ajoute(int index, const QString& nom);
    void Retire(int rang);

    /// The key of the patient in that row.
    int Index(int rang) const { return repertoire_.Index(rang); }
    /// The row's text as the list shows it: two blanks and the name.
    QString Texte(int rang) const;
    /// The first patient whose name begins with the text, see `Repertoire::Cherche`; -1 without one.
    int Cherche(QStringView texte) const { return repertoire_.Cherche(texte); }

private:
    Repertoire repertoire_;
};

} // namespace patients
