#include "storage/Bases.h"

#include "common/Fichiers.h"
#include "storage/ConversionJet.h"
#include "storage/PatientsAnciens.h"
#include "storage/messages.h"

#include <QFileInfo>
#include <QScopedValueRollback>

namespace storage {

Base& Bases::Medoc(const QString& cheminTravail)
{
    const QString chemin = FichierMedoc(cheminTravail);
    if (!EstOuverte(medoc_, chemin)) {
        medoc_.reset();
        ConvertitSiJet(chemin, GenreBase::Medoc);
        PrendPatientsDeLaRacine(chemin, FichierOrdo(cheminTravail));
        medoc_ = std::make_unique<Base>(chemin, GenreBase::Medoc);
    }
    return *medoc_;
}

Base& Bases::Ordo(const QString& cheminMedecin)
{
    const QString chemin = FichierOrdo(cheminMedecin);
    if (!EstOuverte(ordo_, chemin)) {
        ordo_.reset();
        ConvertitSiJet(chemin, GenreBase::Ordo);
        ordo_ = std::make_unique<Base>(chemin, GenreBase::Ordo);
    }
    return *ordo_;
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

bool Bases::EstOuverte(const std::unique_ptr<Base>& base, const QString& chemin)
{
    return base && base->Chemin() == chemin;
}

void Bases::PrendPatientsDeLaRacine(const QString& medoc, const QString& ordo)
{
    if (common::FichierExiste(ordo) && PatientsSontAilleurs(medoc)) {
        ConvertitSiJet(ordo, GenreBase::Ordo);
        PrendPatients(medoc, ordo);
    }
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
