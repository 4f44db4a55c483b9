#include "medication/MedicamentsUtilises.h"

#include "storage/Base.h"
#include "storage/Jeu.h"

namespace medication {

namespace {

const QLatin1String kTable("MedUtile");
const QLatin1String kDeCip("CIP = ?");

} // namespace

bool MedicamentsUtilises::Contient(const QString& cip)
{
    return !medoc_.Selection(kTable, kDeCip, {cip}).Fin();
}

void MedicamentsUtilises::Ajoute(const QString& cip)
{
    storage::Transaction transaction(medoc_);
    storage::Jeu pack = medoc_.Selection(kTable, kDeCip, {cip});
    if (pack.Fin()) {
        pack.AddNew();
        pack.Ecris(0, cip);
        pack.Update();
    }
    transaction.Valide();
}

void MedicamentsUtilises::Retire(const QString& cip)
{
    medoc_.SupprimeOu(kTable, kDeCip, {cip});
}

} // namespace medication
