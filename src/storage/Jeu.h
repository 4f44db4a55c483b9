#pragma once

#include <QList>
#include <QString>
#include <QVariant>

namespace storage {

class Base;

/// A record set over one table or selection: its rows in stored order, their fields by position from 0.
/// Null is distinct from the empty text. The rows are read once, at the opening.
class Jeu
{
public:
    int RecordCount() const { return static_cast<int>(lignes_.size()); }
    bool Fin() const { return courante_ < 0 || courante_ >= lignes_.size(); } ///< EOF
    void MoveFirst() { courante_ = 0; }
    void MoveLast() { courante_ = lignes_.size() - 1; }
    void MoveNext() { ++courante_; }
    void MovePrevious() { --courante_; }

    /// The current row's field; an invalid QVariant for null. Of a row being written, the value given so far.
    QVariant Champ(int position) const;
    bool EstNull(int position) const { return !Champ(position).isValid(); }
    /// The field as text; empty for null.
    QString Texte(int position) const { return Champ(position).toString(); }

    /// Starts a new row; an autonumber column has its value at once.
    void AddNew();
    /// Starts a change of the current row.
    void Edit();
    /// A field of the row being written; an invalid QVariant stores null.
    void Ecris(int position, const QVariant& valeur);
    /// Stores the row being written. Throws `Erreur`; nothing is stored then.
    void Update();
    /// Deletes the current row. The walk goes on with `MoveNext`, as if the row still stood.
    void Delete();

private:
    friend class Base;
    struct Ligne
    {
        qint64 Cle = 0; // rowid
        QVariantList Champs;
    };

    Jeu(Base& base, QString table) : base_(&base), table_(std::move(table)) {}

    Base* base_;
    QString table_;
    QList<Ligne> lignes_;
    qsizetype courante_ = 0;
    enum class Ecriture { Aucune, Ajout, Changement } ecriture_ = Ecriture::Aucune;
    Ligne enCours_;
};

} // namespace storage
