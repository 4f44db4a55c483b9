#pragma once

#include "storage/Rangee.h"
#include "storage/Schema.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>
#include <QVariantList>
#include <functional>
#include <optional>
#include <unordered_map>

namespace storage {

class Jeu;
struct Textes;

/// What an opening makes of a file of an older layout: `Courante` completes it to the current one, `Telle`
/// takes it as it stands.
enum class Disposition { Courante, Telle };

/// One open database file. Whatever fails throws `Erreur` with a French sentence and the file's path.
/// SQLite with rollback journal, synchronous=FULL and a busy timeout; one thread.
class Base
{
public:
    /// Called with each statement before it runs; true makes it fail. For tests only.
    using Crochet = std::function<bool(const QString& instruction)>;

    /// Opens an existing file and checks it: a database, ours, of this kind and version, whole. No file is
    /// created. `Courante` adds what an older layout lacks (see `CompleteDisposition`) and the missing
    /// indexes; `Telle` writes nothing.
    Base(const QString& chemin, GenreBase genre, Disposition disposition = Disposition::Courante);
    ~Base();
    Base(const Base&) = delete;
    Base& operator=(const Base&) = delete;

    const QString& Chemin() const { return chemin_; }
    GenreBase Genre() const { return genre_; }

    /// The tables that this opening knows: those of the current layout, or with `Telle` those of the file.
    const QList<storage::Table>& Tables() const;
    /// The table of that name, or null.
    const storage::Table* ChercheTable(const QString& nom) const;

    /// All the rows of a table, in stored order.
    Jeu Table(const QString& table);
    /// The rows that fulfil a condition, in stored order. Values stand as '?' in the condition.
    Jeu Selection(const QString& table, const QString& condition, const QVariantList& valeurs);
    /// Deletes the rows that fulfil a condition and gives their number.
    int SupprimeOu(const QString& table, const QString& condition, const QVariantList& valeurs);
    /// Runs any other statement with bound values.
    void Execute(const QString& instruction, const QVariantList& valeurs = {});

    /// Walks the rows of any select once, forwards, without keeping them.
    void Parcourt(const QString& instruction, const QVariantList& valeurs,
                  const std::function<void(const Rangee&)>& lecteur);
    /// A column of whole numbers and one of texts of a table: the fast road for lists of many thousand rows.
    Textes LitTextes(const QString& table, const QString& cle, const QString& texte);

    void PoseCrochet(Crochet crochet) { crochet_ = std::move(crochet); }

private:
    friend class Jeu;
    friend class Transaction;
    QSqlQuery Prepare(const QString& instruction);
    void LieEtLance(QSqlQuery& requete, const QVariantList& valeurs);
    QSqlQuery Lance(const QString& instruction, const QVariantList& valeurs);
    bool Avance(QSqlQuery& requete);
    Textes LitTextesUnParUn(const QString& table, const QString& cle, const QString& texte);
    void Ouvre();
    void Ferme();

    QString chemin_;
    GenreBase genre_;
    std::optional<QList<storage::Table>> telles_; ///< the file's own tables, with `Telle`
    QString connexion_;
    QSqlDatabase base_;
    /// Statements of `Parcourt` that are not running, ready for the next time.
    std::unordered_map<QString, QSqlQuery> pretes_;
    Crochet crochet_;
    int profondeur_ = 0;     ///< of nested transactions
    bool condamnee_ = false; ///< an inner transaction was given up: the outer one cannot be stored
};

/// One transaction: rolled back when it dies without `Valide`. Inner ones join the outer one, which cannot
/// be stored any more once an inner one has died so.
class Transaction
{
public:
    explicit Transaction(Base& base);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Throws `Erreur` when the disk refuses; everything is rolled back then.
    void Valide();

private:
    Base& base_;
    bool valide_ = false;
};

} // namespace storage
