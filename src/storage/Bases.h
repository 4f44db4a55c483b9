#pragma once

#include "storage/Base.h"

#include "storage/RefusJet.h"

#include <QDateTime>
#include <QHash>

#include <memory>

namespace storage {

class SuiviConversion;

/// The databases of a run: the shared one and the current doctor's. Each is opened at its first use
/// and again when its path has changed. A Jet file is converted before (see `ConvertitSiJet`).
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

    /// Where conversions tell how far they are; it outlives this object. Null for nowhere.
    void Suit(SuiviConversion* suivi) { suivi_ = suivi; }
    /// Converts the file at that path if it is a Jet file. Throws `Erreur`; a refusal is repeated without a
    /// second reading while the file stays as it is.
    void ConvertitSiJet(const QString& chemin, GenreBase genre);

    void FermeMedoc() { medoc_.reset(); }
    void FermeOrdo() { ordo_.reset(); }

private:
    static QString FichierMedoc(const QString& cheminTravail);
    static QString FichierOrdo(const QString& cheminMedecin);
    static bool EstOuverte(const std::unique_ptr<Base>& base, const QString& chemin);
    /// The oldest layouts kept the patients in the "Ordo.mdb" of the tree's root.
    void PrendPatientsDeLaRacine(const QString& medoc, const QString& ordo);

    /// A Jet file that was not converted, as it stood then.
    struct Refus
    {
        qint64 Taille;
        QDateTime Heure;
        RefusJet Motif;
    };

    SuiviConversion* suivi_ = nullptr;
    bool convertit_ = false; ///< events are delivered meanwhile: somebody may ask for a database
    QHash<QString, Refus> refus_;
    std::unique_ptr<Base> medoc_;
    std::unique_ptr<Base> ordo_;
};

} // namespace storage
