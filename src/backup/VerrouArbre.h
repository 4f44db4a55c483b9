#pragma once

#include <QLockFile>
#include <QString>

namespace backup {

/// Held while the files of a directory are replaced or copied as a whole, by one program of one station. One
/// that a program has left behind that ended in the middle is taken over.
class VerrouArbre
{
public:
    explicit VerrouArbre(const QString& dossier);

    /// True when another program holds it.
    bool PrisAilleurs() const { return pris_; }
    /// Throws `Erreur` when another program holds it.
    void Exige() const;

private:
    QString dossier_;
    QLockFile verrou_;
    bool pris_;
};

} // namespace backup
