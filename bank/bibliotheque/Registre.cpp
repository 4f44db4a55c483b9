#include "bank/bibliotheque/Registre.h"

#include <limits>

namespace banque::bibliotheque {

Poignee Registre::Reserve()
{
    do {
        derniere_ = derniere_ == std::numeric_limits<Poignee>::max() ? 1 : derniere_ + 1;
    } while (objets_.contains(derniere_));
    return derniere_;
}

Poignee Registre::Range(std::type_index genre, std::shared_ptr<const void> objet)
{
    const Poignee poignee = Reserve();
    objets_.emplace(poignee, Objet{genre, std::move(objet)});
    return poignee;
}

} // namespace banque::bibliotheque
