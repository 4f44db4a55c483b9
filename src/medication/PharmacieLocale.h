#pragma once

#include "medication/Pharmacie.h"

#include <functional>

namespace storage {
class Base;
}

namespace medication {

/// The pharmacy without a bank: the table `BddMed` of "Medoc.mdb".
class PharmacieLocale : public Pharmacie
{
public:
    /// Gives the open "Medoc.mdb" of the run at each use.
    using Ouverture = std::function<storage::Base&()>;

    explicit PharmacieLocale(Ouverture base) : base_(std::move(base)) {}

    /// The whole table by name, whatever is searched. Rows of a blank name are deleted from it.
    QList<Noeud> Charge(const QString& recherche) override;
    std::optional<Saisie> Lit(const Noeud& noeud) override;
    std::optional<QString> Notes(const QString& etiquette) override;
    void Enregistre(Noeud& noeud, const Saisie& saisie, outside::Boites& boites) override;
    bool Retire(const Noeud& noeud, const QString& nom, outside::Boites& boites) override;
    QString Identifiant(const Noeud* noeud) const override;

    /// A new medication with a number of its own, its name in capitals.
    void Ajoute(const Saisie& saisie);

private:
    Ouverture base_;
};

} // namespace medication
