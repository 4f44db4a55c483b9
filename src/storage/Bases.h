#pragma once

#include "storage/Base.h"

#include <memory>

namespace storage {

/// The databases of a run: the shared one and the current doctor's. Each is opened at its first use
/// and again when its path has changed.
class Bases
{
public:
    /// "Medoc.mdb" of the data directory `cheminTravail`.
    Base& Medoc(const QString& cheminTravail);
    /// "Ordo.mdb" of the doctor's directory `cheminMedecin`.
    Base& Ordo(const QString& cheminMedecin);

    /// Whether the file stands there; what it holds is seen at the opening.
    static bool MedocExiste(const QString& cheminTravail);
    static bool OrdoExiste(const QString& cheminMedecin);

    void FermeMedoc() { medoc_.reset(); }
    void FermeOrdo() { ordo_.reset(); }

private:
    static QString FichierMedoc(const QString& cheminTravail);
    static QString FichierOrdo(const QString& cheminMedecin);
    static Base& Ouverte(std::unique_ptr<Base>& base, const QString& chemin, GenreBase genre);

    std::unique_ptr<Base> medoc_;
    std::unique_ptr<Base> ordo_;
};

} // namespace storage
