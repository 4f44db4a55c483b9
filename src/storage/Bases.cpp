#include "storage/Bases.h"

#include "common/Fichiers.h"

namespace storage {

Base& Bases::Medoc(const QString& cheminTravail)
{
    return Ouverte(medoc_, common::Joint(cheminTravail, QStringLiteral("Medoc.mdb")), GenreBase::Medoc);
}

Base& Bases::Ordo(const QString& cheminMedecin)
{
    return Ouverte(ordo_, common::Joint(cheminMedecin, QStringLiteral("Ordo.mdb")), GenreBase::Ordo);
}

Base& Bases::Ouverte(std::unique_ptr<Base>& base, const QString& chemin, GenreBase genre)
{
    if (!base || base->Chemin() != chemin) {
        base.reset();
        base = std::make_unique<Base>(chemin, genre);
    }
    return *base;
}

} // namespace storage
