#include "storage/Bases.h"

#include "common/Fichiers.h"

namespace storage {

Base& Bases::Medoc(const QString& cheminTravail)
{
    return Ouverte(medoc_, FichierMedoc(cheminTravail), GenreBase::Medoc);
}

Base& Bases::Ordo(const QString& cheminMedecin)
{
    return Ouverte(ordo_, FichierOrdo(cheminMedecin), GenreBase::Ordo);
}

bool Bases::MedocExiste(const QString& cheminTravail)
{
    return common::FichierExiste(FichierMedoc(cheminTravail));
}

bool Bases::OrdoExiste(const QString& cheminMedecin)
{
    return common::FichierExiste(FichierOrdo(cheminMedecin));
}

QString Bases::FichierMedoc(const QString& cheminTravail)
{
    return common::Joint(cheminTravail, QStringLiteral("Medoc.mdb"));
}

QString Bases::FichierOrdo(const QString& cheminMedecin)
{
    return common::Joint(cheminMedecin, QStringLiteral("Ordo.mdb"));
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
