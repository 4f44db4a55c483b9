#pragma once

#include "medication/Pharmacie.h"

namespace application {
struct Contexte;
}
namespace drugbank {
struct Pack;
}
namespace storage {
class Base;
}

namespace medication {

/// The tag of an entry of the personal pharmacy.
constexpr QLatin1String kEtiquettePersonnelle("1");

/// The pharmacy of the bank mode: the packs of the drug bank, and beside them the doctor's own entries.
class PharmacieBanque : public Pharmacie
{
public:
    explicit PharmacieBanque(application::Contexte& contexte) : contexte_(contexte) {}

    /// A blank search gives the personal entries in stored order, each behind a blank; any other the packs
    /// that the bank finds, those prescribed before marked when the options ask for it.
    QList<Noeud> Charge(const QString& recherche) override;
    /// An entry that is no longer stored has no posology.
    std::optional<Saisie> Lit(const Noeud& noeud) override;
    /// The bank mode keeps none.
    std::optional<QString> Notes(const QString&) override { return std::nullopt; }
    void Enregistre(Noeud& noeud, const Saisie& saisie, outside::Boites& boites) override;
    /// Only a personal entry can be deleted. `nom` is what the question names; one that was typed over
    /// the name of the node is looked for as it stands.
    bool Retire(const Noeud& noeud, const QString& nom, outside::Boites& boites) override;
    /// The product of the pack last clicked; "1" for a personal entry.
    QString Identifiant(const Noeud* noeud) const override;
    QStringList InfoPack(const Noeud& noeud) const override;
    /// A pack once prescribed is marked from the next search on.
    void Prescrit(const Noeud* noeud) override;

private:
    storage::Base& Medoc();
    QList<Noeud> Personnels();
    QList<Noeud> Packs(const QString& recherche);
    /// The common name when it is asked for and there is one, else the name of the pack.
    QString NomDuPack(const Noeud& noeud) const;
    QString NomDCI(const Noeud& noeud) const;
    void EnregistrePersonnel(Noeud& noeud, const Saisie& saisie, outside::Boites& boites);

    application::Contexte& contexte_;
};

} // namespace medication
