#include "storage/Bases.h"

#include "common/Fichiers.h"
#include "storage/ConversionJet.h"
#include "storage/messages.h"

#include <QFileInfo>
#include <QScopedValueRollback>

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
        ConvertitSiJet(chemin, genre);
        base = std::make_unique<Base>(chemin, genre);
    }
    return *base;
}

void Bases::ConvertitSiJet(const QString& chemin, GenreBase genre)
{
    if (convertit_) {
        throw Panne(messages::ConversionEnCours, chemin);
    }
    const QFileInfo info(chemin);
    if (const auto refus = refus_.constFind(chemin); refus != refus_.cend()) {
        if (refus->Taille == info.size() && refus->Heure == info.lastModified()) {
            throw RefusJet(refus->Motif);
        }
        refus_.erase(refus);
    }
    const QScopedValueRollback<bool> garde(convertit_, true);
    try {
        storage::ConvertitSiJet(chemin, genre, {.Suivi = suivi_});
    } catch (const RefusJet& motif) {
        refus_.insert(chemin, {info.size(), info.lastModified(), motif});
        throw;
    }
}

} // namespace storage
