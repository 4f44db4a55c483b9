#pragma once

#include "medication/Noeud.h"

#include <QList>
#include <QStringList>
#include <memory>
#include <optional>

namespace outside {
class Boites;
}

namespace medication {

/// Where the picker's medications come from. Whatever fails throws `Erreur`.
class Pharmacie
{
public:
    virtual ~Pharmacie() = default;

    /// The candidates for a search text, in the order of the tree.
    virtual QList<Noeud> Charge(const QString& recherche) = 0;
    /// The name and the posology of a candidate; nothing when it is no longer stored.
    virtual std::optional<Saisie> Lit(const Noeud& noeud) = 0;
    /// The notes kept with a candidate; nothing without any.
    virtual std::optional<QString> Notes(const QString& etiquette) = 0;
    /// Stores both boxes for the candidate last read and tells the doctor. `noeud` takes its new text where
    /// the candidate is known by it.
    virtual void Enregistre(Noeud& noeud, const Saisie& saisie, outside::Boites& boites) = 0;
    /// Asks, then deletes a candidate; `nom` is the name in hand. True when its node has to go.
    virtual bool Retire(const Noeud& noeud, const QString& nom, outside::Boites& boites) = 0;
    /// What a fresh line of this candidate carries in its last ten characters; null for no node.
    virtual QString Identifiant(const Noeud* noeud) const = 0;
    /// CIP, pack id, product id and price of a candidate of the bank; empty for any other.
    virtual QStringList InfoPack(const Noeud&) const { return {}; }
    /// A fresh line of this candidate was added; null for no node.
    virtual void Prescrit(const Noeud*) {}
};

} // namespace medication
