#include "medication/PosologiesMemorisees.h"

#include "storage/Base.h"
#include "storage/Jeu.h"

namespace medication {

namespace {

// Columns of the table.
constexpr int kCip = 0;
constexpr int kPosologie = 1;

storage::Jeu RangeeDe(storage::Base& medoc, const QString& cip)
{
    return medoc.Selection(QStringLiteral("Vidal"), QStringLiteral("CIP = ?"), {cip});
}

} // namespace

QString PosologiesMemorisees::Lis(const QString& cip)
{
    const storage::Jeu rangee = RangeeDe(medoc_, cip);
    return rangee.Fin() ? QString() : rangee.Texte(kPosologie);
}

void PosologiesMemorisees::Enregistre(const QString& cip, const QString& posologie)
{
    storage::Transaction transaction(medoc_);
    storage::Jeu rangee = RangeeDe(medoc_, cip);
    if (rangee.Fin()) {
        rangee.AddNew();
        rangee.Ecris(kCip, cip);
    } else {
        rangee.Edit();
    }
    rangee.Ecris(kPosologie, posologie);
    rangee.Update();
    transaction.Valide();
}

} // namespace medication
