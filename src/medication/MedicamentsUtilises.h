#pragma once

#include <QString>

namespace storage {
class Base;
}

namespace medication {

/// The packs of the bank once prescribed, by CIP: the table `MedUtile`, one row a pack. It counts nothing: a
/// pack that is taken out comes back with its next prescription. Whatever fails throws `Erreur`.
class MedicamentsUtilises
{
public:
    explicit MedicamentsUtilises(storage::Base& medoc) : medoc_(medoc) {}

    bool Contient(const QString& cip);
    /// Adds the row of a pack that has none.
    void Ajoute(const QString& cip);
    void Retire(const QString& cip);

private:
    storage::Base& medoc_;
};

} // namespace medication
