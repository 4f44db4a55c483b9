#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

namespace storage {

/// Several files in one, in the archive format of the database engine, which its own shell opens too. Names
/// are relative paths with '/'. Whatever fails throws `Erreur`.
class Archive
{
public:
    enum class Mode {
        Creation, ///< a new file; it is whole once `Valide` has returned
        Lecture
    };

    Archive(const QString& chemin, Mode mode);
    ~Archive();
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;

    void Ajoute(const QString& nom, const QByteArray& contenu, const QDateTime& modifie);
    void Valide();

    /// The names of its files, sorted.
    QStringList Noms() const;
    /// The content of one, checked against its size.
    QByteArray Lit(const QString& nom) const;

private:
    void Execute(const QString& instruction);
    void Ferme();

    QString chemin_;
    QString connexion_;
    QSqlDatabase base_;
};

/// Copies a database as it stands between two writings, whoever has it open, into a new file. Throws
/// `Erreur`; no file is left then.
void CopieBase(const QString& source, const QString& copie);

/// Throws `Erreur` when somebody reads or writes that database just now. One that is damaged, or no database
/// at all, is nobody's.
void ExigeLibre(const QString& chemin);

} // namespace storage
