#pragma once

#include "medication/Noeud.h"

#include <QStringList>
#include <optional>

namespace storage {
class Base;
}

namespace medication {

/// The doctor's own titles beside a drug bank, each with a posology or a comment: the table `Biblio`.
/// A title is found exactly as it is stored, a null one as the empty text; of equal ones, the first.
/// Whatever fails throws `Erreur`.
class PharmaciePersonnelle
{
public:
    explicit PharmaciePersonnelle(storage::Base& medoc) : medoc_(medoc) {}

    /// Every title, in stored order.
    QStringList Titres();
    /// The posology of a title, empty when it has none; nothing when the title is not stored.
    std::optional<QString> Posologie(const QString& titre);
    void Ajoute(const Saisie& saisie);
    /// Writes both boxes over the entry of a title. False when it is not stored.
    bool Change(const QString& titre, const Saisie& saisie);
    /// False when the title is not stored.
    bool Supprime(const QString& titre);

private:
    storage::Base& medoc_;
};

} // namespace medication
