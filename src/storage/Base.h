#pragma once

#include <QSqlDatabase>
#include <QVariantList>
#include <functional>

namespace storage {

class Jeu;

/// The two kinds of database file: the shared "Medoc.mdb" and a doctor's "Ordo.mdb".
enum class GenreBase { Medoc, Ordo };

/// One open database file. Whatever fails throws `Erreur` with a French sentence and the file's path.
/// SQLite with rollback journal, synchronous=FULL and a busy timeout; one thread.
class Base
{
public:
    /// Called with each statement before it runs; true makes it fail. For tests only.
    using Crochet = std::function<bool(const QString& instruction)>;

    /// Opens an existing file and checks it: a database, ours, of this kind and version, whole.
    /// Nothing is created and nothing is written over.
    Base(const QString& chemin, GenreBase genre);
    ~Base();
    Base(const Base&) = delete;
    Base& operator=(const Base&) = delete;

    const QString& Chemin() const { return chemin_; }

    /// All the rows of a table, in stored order.
    Jeu Table(const QString& table);
    /// The rows that fulfil a condition, in stored order. Values stand as '?' in the condition.
    Jeu Selection(const QString& table, const QString& condition, const QVariantList& valeurs);
    /// Deletes the rows that fulfil a condition and gives their number.
    int SupprimeOu(const QString& table, const QString& condition, const QVariantList& valeurs);
    /// Runs any other statement with bound values.
    void Execute(const QString& instruction, const QVariantList& valeurs = {});

    void PoseCrochet(Crochet crochet) { crochet_ = std::move(crochet); }

private:
    friend class Jeu;
    friend class Transaction;
    class QSqlQuery Lance(const QString& instruction, const QVariantList& valeurs, bool enAvant = false);
    void Verifie(GenreBase genre);

    QString chemin_;
    QString connexion_;
    QSqlDatabase base_;
    Crochet crochet_;
    int profondeur_ = 0; // of nested transactions
};

/// One transaction: rolled back when it dies without `Valide`. Inner ones join the outer one.
class Transaction
{
public:
    explicit Transaction(Base& base);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Valide();

private:
    Base& base_;
    bool valide_ = false;
};

} // namespace storage
