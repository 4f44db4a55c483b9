// A helper library that knows product 2 alone, and fills the whole buffer for product 3.
#include "drugbank/InterfaceBanque.h"

#include <QtGlobal>
#include <cstring>

extern "C" Q_DECL_EXPORT drugbank::Entier DRUGBANK_APPEL
VidalHelper_getVidalAPIPath(drugbank::Entier produit, char* tampon, drugbank::Entier longueur)
{
    if (produit == 2) {
        std::strcpy(tampon, "/banque/api");
        return 0;
    }
    std::memset(tampon, 'x', static_cast<std::size_t>(longueur));
    return produit == 3 ? 0 : 5;
}
