#pragma once

#include "drugbank/Banque.h"
#include "prescription/CleMemo.h"

#include <QList>

namespace patients {
struct Patient;
}
namespace storage {
class Base;
}

/// The memorised prescriptions in the shared database. Each change is one transaction: it throws `Erreur`
/// and leaves the stored prescriptions as they were, or is stored whole.
namespace prescription {

/// A row of `ListeOrdos`.
struct Memorisee
{
    CleMemo Cle;
    quint8 ALD = 0; ///< `ChkALD` when it was stored
    bool operator==(const Memorisee&) const = default;
};

/// A row of `OrdoEnr`.
struct LigneMemorisee
{
    QString TitreLigne;
    QString Posologie;
    int Zone = 1;              ///< 1 or 2
    qint64 IdProduit = 1;      ///< the bank's product id, a CIP code in rows of an old version; 1 for none
    bool AncienFormat = false; ///< its `Converti` holds a "0": the doctor is asked about it
    bool EstUnCode = false;    ///< `IdProduit` is a code of an old version, asked about or not
    bool operator==(const LigneMemorisee&) const = default;
};

/// Those for all patients and those of this one, in stored order.
QList<Memorisee> ListeMemorisees(storage::Base& medoc, const patients::Patient& patient);
/// The lines in stored order; none when nothing is stored under that key.
QList<LigneMemorisee> LitMemorisee(storage::Base& medoc, const CleMemo& cle);
/// Whether the lists show a prescription of that key.
bool EstMemorisee(storage::Base& medoc, const CleMemo& cle);

/// Stores a new one. Lines of another one of the same key stay and come before.
void AjouteMemorisee(storage::Base& medoc, const Memorisee& memorisee, const QList<LigneMemorisee>& lignes);
/// Puts these lines in the place of those stored and keeps its place in the lists.
void RemplaceMemorisee(storage::Base& medoc, const Memorisee& memorisee, const QList<LigneMemorisee>& lignes);
void SupprimeMemorisee(storage::Base& medoc, const CleMemo& cle);

/// Nobody asks any more about the format of its lines; those that hold a code still do.
void MarqueConvertie(storage::Base& medoc, const CleMemo& cle);

struct Conversion
{
    int Converties = 0; ///< lines that were not marked as converted before
    int Inconnues = 0;  ///< lines left alone, since the bank does not know their code
};
/// Gives lines of an old version the product id of their CIP code.
Conversion ConvertitMemorisee(storage::Base& medoc, const CleMemo& cle,
                              const drugbank::ResolutionCip& produitDuCip);

} // namespace prescription
