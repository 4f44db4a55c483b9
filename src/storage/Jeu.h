#pragma once

#include <QBitArray>
#include <QList>
#include <QString>
#include <QVariant>

namespace storage {

class Base;
struct Table;

/// A record set over one table or selection: its rows in stored order, their fields by position from 0.
/// Null is distinct from the empty text. The rows are read once, at the opening. A move gives up a row
/// that is being written and not yet stored.
class Jeu
{
public:
    int RecordCount() const { return static_cast<int>(lignes_.size()); }
    bool Fin() const { return !effacee_ && !SurUneLigne(); } ///< EOF
    void MoveFirst() { VaA(0); }
    void MoveLast() { VaA(lignes_.size() - 1); }
    void MoveNext() { VaA(effacee_ ? courante_ : courante_ + 1); }
    void MovePrevious() { VaA(courante_ - 1); }

    /// The current row's field; an invalid QVariant for null. Of a row being written, the value given so far.
    QVariant Champ(int position) const;
    bool EstNull(int position) const { return !Champ(position).isValid(); }
    /// The field as text; empty for null.
    QString Texte(int position) const { return Champ(position).toString(); }

    /// Starts a new row; an autonumber column has its value at once, a yes/no column has no. Fields that
    /// are not written stay null.
    void AddNew();
    /// Starts a change of the current row.
    void Edit();
    /// A field of the row being written; an invalid QVariant stores null.
    void Ecris(int position, const QVariant& valeur);
    /// Stores the row being written: of a changed one, only the fields written. A new row stands behind the
    /// others, and the current one stays current. Throws `Erreur`; nothing is stored then.
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
    enum class Ecriture { Aucune, Ajout, Changement };

    Jeu(Base& base, const QString& table, const QString& condition, const QVariantList& valeurs);
    bool SurUneLigne() const { return !effacee_ && courante_ >= 0 && courante_ < lignes_.size(); }
    void VaA(qsizetype ligne);
    void ExigeLigne() const;
    qint64 NumeroSuivant() const;
    int PlaceCompteur() const;
    void Insere();
    void Change();

    Base* base_;
    const storage::Table* table_;
    QList<Ligne> lignes_;
    qsizetype courante_ = 0;
    bool effacee_ = false; ///< the row before `courante_` was just deleted
    Ecriture ecriture_ = Ecriture::Aucune;
    Ligne enCours_;
    QBitArray ecrits_; ///< the fields of `enCours_` that were written
};

} // namespace storage
