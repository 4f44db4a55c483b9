#pragma once

#include "drugbank/Banque.h"

namespace settings {

/// What a choice of the pharmacy's base came to.
struct ChoixPharmacie
{
    int Rang = 0;        ///< option that is selected now: 0 "Scriptelle", 1 "Vidal TVS", 2 "Vidal Dentaire"
    QString LblBase;     ///< what the doctor reads
    bool Relief = false; ///< used medications can be set in relief
};

/// `OptB`: takes the base of that option. A bank that cannot be there, for want of the helper library,
/// leaves the personal pharmacy.
ChoixPharmacie ChoisitPharmacie(drugbank::Banque& banque, int rang);

/// The option of a base, -1 for one that has none.
int RangPharmacie(const QString& typeBase);

} // namespace settings
