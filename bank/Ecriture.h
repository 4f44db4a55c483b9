#pragma once

#include <QLockFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <functional>
#include <initializer_list>

namespace banque {

class Ecriture;

/// One prepared insertion into a table, used row after row.
class Insertion
{
public:
    /// Writes a row. Throws `Erreur`.
    void Ajoute(std::initializer_list<QVariant> valeurs);

private:
    friend class Ecriture;
    Insertion(Ecriture& ecriture, const QString& table, int colonnes);

    Ecriture& ecriture_;
    QSqlQuery requete_;
    QStringList places_;
    QVariantList liees_; ///< of the row before
    bool premiere_ = true;
};

/// A bank being written: a neighbour of the file to come, filled in one transaction, which takes its place at
/// `Valide` alone. Dying before that, it leaves the former file as it was and nothing beside it.
class Ecriture
{
public:
    /// Makes the empty tables. Throws `Erreur` when another import is writing the same bank.
    explicit Ecriture(const QString& chemin);
    ~Ecriture();
    Ecriture(const Ecriture&) = delete;
    Ecriture& operator=(const Ecriture&) = delete;

    /// An insertion of every column of a table, in the order of the schema.
    Insertion Prepare(const QString& table);
    void Execute(const QString& instruction);
    /// The bank being written, for what fills tables of its own within the same transaction.
    const QSqlDatabase& Base() const { return base_; }
    /// Makes the indexes, flushes the file to the disk and puts it in the place of the former one, `avant`
    /// being called between. Throws `Erreur`.
    void Valide(const std::function<void()>& avant);

private:
    friend class Insertion;
    [[noreturn]] void Echoue(const QSqlError& erreur) const;
    void Ouvre();
    void Ferme();

    QString chemin_;
    QString ebauche_;
    QLockFile verrou_;
    QString connexion_;
    QSqlDatabase base_;
};

} // namespace banque
