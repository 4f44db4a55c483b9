#include "storage/PatientsAnciens.h"

#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "storage/Base.h"
#include "storage/Correspondance.h"
#include "storage/EnteteJet.h"
#include "storage/Verification.h"

#include <algorithm>

namespace storage {

namespace {

const QString kPatients = QStringLiteral("Patients");

const Table& Patients()
{
    const QList<Table>& medoc = Tables(GenreBase::Medoc);
    return *std::ranges::find(medoc, kPatients, &Table::Nom);
}

/// The columns of both tables that hold the same, ours first.
std::pair<QStringList, QStringList> Communes(const Table& ancienne)
{
    QStringList noms;
    for (const Colonne& colonne : ancienne.Colonnes) {
        noms.append(colonne.Nom);
    }
    const QList<qsizetype> places = Places(Patients(), noms);
    std::pair<QStringList, QStringList> communes;
    for (qsizetype i = 0; i < places.size(); ++i) {
        if (places[i] >= 0) {
            communes.first.append(Cite(Patients().Colonnes[i].Nom));
            communes.second.append(QStringLiteral("s.") + Cite(noms[places[i]]));
        }
    }
    return communes;
}

void Recopie(Base& medoc, const Table& ancienne)
{
    const auto [vers, depuis] = Communes(ancienne);
    medoc.Execute(QStringLiteral("insert into main.Patients (%1) select %2 from racine.%3 s order by s.rowid")
                      .arg(vers.join(u','), depuis.join(u','), Cite(ancienne.Nom)));
}

bool ALesPatients(const QString& ordo)
{
    bool presents = false;
    common::Tolere([&] {
        const Base base(ordo, GenreBase::Ordo, Disposition::Telle);
        presents = base.ChercheTable(kPatients) != nullptr;
    });
    return presents;
}

/// `siIllisible` when the file cannot be opened.
bool SontAilleurs(const QString& medoc, bool siIllisible)
{
    bool ailleurs = siIllisible;
    common::Tolere([&] {
        Base base(medoc, GenreBase::Medoc, Disposition::Telle);
        ailleurs = VersionDuFichier(base) != kVersionSchema && !base.ChercheTable(kPatients);
    });
    return ailleurs;
}

} // namespace

bool PatientsSontAilleurs(const QString& medoc)
{
    return SontAilleurs(medoc, false);
}

bool GardePatients(const QString& ordo, const QString& medoc)
{
    return LitFormatJet(ordo) != FormatJet::Aucun ||
           (ALesPatients(ordo) && SontAilleurs(medoc, common::FichierExiste(medoc)));
}

void PrendPatients(const QString& medoc, const QString& ordo)
{
    const Base racine(ordo, GenreBase::Ordo, Disposition::Telle);
    const Table* ancienne = racine.ChercheTable(kPatients);
    if (!ancienne) {
        return;
    }
    Base base(medoc, GenreBase::Medoc, Disposition::Telle);
    base.Execute(QStringLiteral("attach ? as racine"), {ordo});
    Transaction transaction(base);
    base.Execute(CreeTableSql(Patients()));
    Recopie(base, *ancienne);
    transaction.Valide();
}

} // namespace storage
