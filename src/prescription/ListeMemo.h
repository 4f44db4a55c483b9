#pragma once

#include "prescription/OrdosMemorisees.h"

#include <QAbstractListModel>
#include <optional>

namespace prescription {

/// One list of memorised prescriptions: those for all patients, or those of one. A row's text is its
/// number, "-", a blank and the title; a search narrows the rows and leaves their texts. Qt::DisplayRole
/// gives the text, Qt::UserRole the `ALD` stored.
class ListeMemo : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Takes the prescriptions in their order, numbered from 1. The search is none.
    void Remplit(const QList<Memorisee>& memorisees);
    /// Shows only the titles that hold the text, whatever its accents and case.
    void Filtre(const QString& recherche);
    /// Takes a row out, with any other of the same title, which stands for the same stored lines. The others
    /// keep their numbers.
    void Retire(int rang);

    /// Without any prescription, shown or not.
    bool Vide() const { return elements_.isEmpty(); }
    QString Texte(int rang) const;
    /// The title as a choice reads it from the row's text: without its first three characters, trimmed.
    QString TitreChoisi(int rang) const;
    /// Where the prescription stands in the tables; nothing beyond the 99th, whose title is cut wrong.
    std::optional<CleMemo> Cle(int rang) const;
    quint8 ALD(int rang) const;
    /// The number that the row's text begins with, 0 for a row that does not exist; the row of a number,
    /// -1 when it is not shown.
    int Numero(int rang) const;
    int RangDe(int numero) const;

private:
    struct Element
    {
        prescription::Memorisee Memorisee;
        int Numero = 0;
        QString Replie; ///< what a search looks through
    };

    const Element* Lis(int rang) const;
    void RetirePlace(int place);

    QList<Element> elements_;
    QList<int> montres_; ///< places in `elements_`
};

} // namespace prescription
