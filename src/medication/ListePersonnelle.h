#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QStringList>
#include <optional>

namespace medication {

/// A row of the list: what it shows, and the stored title that it stands for; the empty row has none.
struct EntreePersonnelle
{
    QString Texte;
    std::optional<QString> Titre;
};

/// The rows of the personal pharmacy in `FrmNouveauM`: an empty one, then two blanks and a title each.
class ListePersonnelle : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Null outside the list.
    const EntreePersonnelle* Lis(int rang) const;
    /// Replaces all rows. Without a title there is no row at all, not even the empty one.
    void Remplit(const QStringList& titres);
    /// A new last row for a stored title, shown as it was typed.
    void Ajoute(const QString& tape, const QString& titre);
    void Retire(int rang);

private:
    QList<EntreePersonnelle> entrees_;
};

} // namespace medication
