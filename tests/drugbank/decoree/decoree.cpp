// A bank of few functions, each under another form of its name; `CopyString` under one that is not its own.
#include "drugbank/InterfaceBanque.h"

#include <cstring>

using drugbank::Entier;
using drugbank::Poignee;
using drugbank::TexteBanque;

extern "C" {

__declspec(dllimport) int LongueurVoisine(const char* texte);

Entier DRUGBANK_APPEL VidalAPI_getVersion(char* tampon, Entier longueur)
{
    std::memset(tampon, 0, static_cast<std::size_t>(longueur));
    std::memcpy(tampon, "4.5", 3);
    return 0;
}

Entier DRUGBANK_APPEL StringLength(TexteBanque texte)
{
    return LongueurVoisine(texte);
}

void DRUGBANK_APPEL CopyStringN2(char* tampon, TexteBanque texte, Entier longueur)
{
    std::memcpy(tampon, texte, static_cast<std::size_t>(longueur));
}

void DRUGBANK_APPEL CopyString(char* tampon, TexteBanque texte)
{
    std::strcpy(tampon, texte);
}

std::int64_t DRUGBANK_APPEL DatabaseInfoService_getExpiryDate(Poignee)
{
    return 1806364800; // 2027-03-30
}
}
