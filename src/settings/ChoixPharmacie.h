#pragma once

#include "application/Contexte.h"

#include <QString>

namespace settings {

/// What a choice of the pharmacy's base came to.
struct ChoixPharmacie
{
    int Rang = 0; ///< option that is selected now: 0 "Scriptelle", 1 "Vidal TVS", 2 "Vidal Dentaire", 3 "Base
                  ///< publique"
    QString LblBase;     ///< what the doctor reads
    bool Relief = false; ///< used medications can be set in relief
};

inline constexpr int kNbPharmacies = 4;

/// `OptB`: takes the base of that option. A bank that cannot be there, for want of the helper library,
/// leaves the personal pharmacy. The open bank needs no helper.
ChoixPharmacie ChoisitPharmacie(application::Contexte& contexte, int rang);

/// What is known of the open bank: whether library and file are there, the date of its data, and what the
/// doctor has to know before he relies on them.
QString EtatBasePublique(const application::Contexte& contexte);

/// The product of a base; that of "TVS" for one that has no option.
qint32 ProduitDeBase(const QString& typeBase);

/// The option of a base, -1 for one that has none.
int RangPharmacie(const QString& typeBase);

} // namespace settings
