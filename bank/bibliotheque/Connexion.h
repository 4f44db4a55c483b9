#pragma once

#include <QSqlDatabase>

namespace banque::bibliotheque {

/// A connection to a bank file, to be read on the thread that made it and closed on any. The file is never
/// written.
class Connexion
{
public:
    explicit Connexion(const QString& fichier);
    ~Connexion();
    Connexion(const Connexion&) = delete;
    Connexion& operator=(const Connexion&) = delete;

    /// Not open when the file is missing or cannot be opened.
    const QSqlDatabase& Base() const { return base_; }

private:
    QString nom_;
    QSqlDatabase base_;
};

} // namespace banque::bibliotheque
