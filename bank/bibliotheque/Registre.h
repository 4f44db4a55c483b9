#pragma once

#include "drugbank/InterfaceBanque.h"

#include <memory>
#include <typeindex>
#include <unordered_map>

namespace banque::bibliotheque {

using drugbank::Poignee;

/// Numbers what the library hands out. A number that was released, was never given or belongs to another
/// kind leads nowhere; none is given twice before all others.
class Registre
{
public:
    /// A number for an object; 0 for none.
    template <typename T> Poignee Donne(std::shared_ptr<const T> objet)
    {
        return objet ? Range(typeid(T), std::move(objet)) : 0;
    }
    /// The object of a number; null when there is none of that kind.
    template <typename T> std::shared_ptr<const T> Lis(Poignee poignee) const
    {
        const auto objet = objets_.find(poignee);
        return Est<T>(objet) ? std::static_pointer_cast<const T>(objet->second.Valeur) : nullptr;
    }
    template <typename T> void Libere(Poignee poignee)
    {
        const auto objet = objets_.find(poignee);
        if (Est<T>(objet)) {
            objets_.erase(objet);
        }
    }
    /// A number that no object has, for what is kept elsewhere.
    Poignee Reserve();

private:
    struct Objet
    {
        std::type_index Genre;
        std::shared_ptr<const void> Valeur;
    };
    using Objets = std::unordered_map<Poignee, Objet>;

    template <typename T> bool Est(Objets::const_iterator objet) const
    {
        return objet != objets_.end() && objet->second.Genre == typeid(T);
    }
    Poignee Range(std::type_index genre, std::shared_ptr<const void> objet);

    Objets objets_;
    Poignee derniere_ = 0;
};

} // namespace banque::bibliotheque
