#pragma once

#include "medication/Noeud.h"

#include <QAbstractListModel>
#include <QList>

namespace medication {

/// The candidates of the picker, in the order in which they were given.
/// Qt::DisplayRole gives the text, Qt::UserRole the tag; a used medication is bold, blue on yellow.
class ArbreMedicaments : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    const QList<Noeud>& Noeuds() const { return noeuds_; }
    /// The node of a row; null outside the tree.
    const Noeud* Lis(int rang) const;
    /// Replaces all nodes. They are in the order of `Trie` where a search is to find them.
    void Remplit(QList<Noeud> noeuds);
    void Retire(int rang);
    /// Replaces one node; a row outside the tree changes nothing.
    void Change(int rang, const Noeud& noeud);

    /// The first row whose text begins with the trimmed search text, capitals and small letters being the
    /// same; -1 for none. An empty search finds the first row.
    int Cherche(const QString& recherche) const;

private:
    QList<Noeud> noeuds_;
};

} // namespace medication
