#pragma once

#include <QAbstractListModel>
#include <QList>

namespace storage {
class Base;
}

namespace medication {

/// A posology that this practice has written for a medication, and how many times.
struct Offre
{
    QString Texte;
    int Fois = 0;
    bool operator==(const Offre&) const = default;
};

/// The posologies stored for a medication, the most frequent first: in the memorised prescriptions and in
/// the pharmacy by `titre`, and for the pack `cip`, empty for none. Case, the "#" of a title and what follows
/// the blanks of F4 count for nothing; a title with accents is found without them as well. Blank posologies
/// are left out. Throws `Erreur`.
QList<Offre> LitOffres(storage::Base& base, const QString& titre, const QString& cip);

/// The posologies that match what is being typed. Qt::DisplayRole gives one on one line, of a long
/// one the beginning, Qt::UserRole how many times it was written, Qt::ToolTipRole more of it.
class OffresPosologie : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Takes the posologies of a medication in the order in which they will be offered; none matches yet.
    void Remplit(QList<Offre> offres);
    /// Leaves those that hold the text typed, case, accents and the width of blanks apart. None for a
    /// blank text, nor when the only one is the text itself.
    void Restreint(const QString& tape);
    /// The posology of a row as it was written; empty beside the rows.
    QString Texte(int rang) const;

private:
    QList<Offre> offres_;
    QStringList pliees_;     // of offres_, in the same order
    QList<qsizetype> rangs_; // into offres_, of those that match
};

} // namespace medication
