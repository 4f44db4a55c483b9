#pragma once

#include <QAbstractListModel>
#include <vector>

namespace prescription {

class JournalEntrees;

/// What a row of the journal's lists says of its record.
enum class RangJournal {
    Date, ///< behind a blank
    Patient
};

/// Rows of one list of the journal, each standing for a record. Qt::DisplayRole gives the date or the
/// patient, Qt::UserRole the number of the record, where rows are single records.
class ListeJournal : public QAbstractListModel
{
    Q_OBJECT

public:
    /// `journal` outlives the list; whoever reads another file empties it first.
    ListeJournal(const JournalEntrees& journal, RangJournal rang, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// What is typed into the list finds a date without its blank.
    QModelIndexList match(const QModelIndex& debut, int role, const QVariant& valeur, int nombre,
                          Qt::MatchFlags facon) const override;

    /// `numerotes`: the rows are single records, not the dates or patients of several.
    void Remplit(std::vector<int> numeros, bool numerotes);
    void Vide() { Remplit({}, false); }
    /// The record of a row.
    int Numero(int rang) const { return numeros_[static_cast<std::size_t>(rang)]; }

private:
    const JournalEntrees& journal_;
    RangJournal rang_;
    std::vector<int> numeros_;
    bool numerotes_ = false;
};

} // namespace prescription
