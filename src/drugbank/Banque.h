#pragma once

#include "drugbank/AccesBanque.h"

#include <QString>
#include <functional>
#include <memory>
#include <optional>

namespace drugbank {

/// The product id of a CIP code; nothing when the bank does not know it.
using ResolutionCip = std::function<std::optional<qint32>(const QString& cip)>;

/// What the status window of a start shows besides `MessageBanque`.
struct StatutBanque
{
    bool Visible = false;
    bool BarreVisible = false;
    int PG = 0;             ///< value of the bar, 0 to `kFinDeBarre`
    bool Annulable = false; ///< the start has lasted: the doctor may give it up
};

inline constexpr int kFinDeBarre = 8;

/// The product code of the open bank, which needs no helper.
inline constexpr qint32 kProduitPublic = 3;

/// Where medications come from, and the session with a bank.
struct Banque
{
    QString TypeBase = QStringLiteral("BIP"); ///< "BIP" local mode, any other a bank
    qint32 NiveauInteraction = 0;             ///< lowest severity reported, 0 to 3
    qint32 ProduitBanque = 2;                 ///< -1 for no bank
    qint32 FiltreBanque = 64;                 ///< 64, 128 or 255
    qint32 SessionBanque = 0;
    QString DateExpirationBase;   ///< "31/03/2027", of the data of the bank; empty when it gives none
    QString CheminBanque;         ///< the bank library, as the helper told it at the start of the program
    QString VersionBanque;        ///< of the bank library; empty before a session
    QString MessageBanque;        ///< what the status window says
    qint32 RetourInitBanque = 0;  ///< status of the last step of the start, 0 when all is well
    quint8 ChargementBanque = 0;  ///< 1 when the library was there at the start of the session
    quint8 BanqueInitialisee = 0; ///< 1 once the start has been run, whatever its outcome
    StatutBanque Statut;
    QString RapportInteractions;           ///< of the lines at the last calculation, its lines ended by CR LF
    bool InteractionsNonVerifiees = false; ///< the last calculation found no bank that answers
    bool SessionManquee = false;           ///< the start left no session: what is found in it says nothing
    ResolutionCip ProduitDuCip;            ///< of the session in use, empty without one; held as `Acces` is
    bool ModuleAide = false;               ///< the helper library could be loaded
    /// Null while no bank is open: a search finds nothing. Who asks holds it, since a library may let the
    /// closing of the session through meanwhile.
    std::shared_ptr<AccesBanque> Acces;
    /// Asks the helper library for a product: 0 when it is installed. Empty while no library is bound.
    std::function<qint32(qint32 produit)> VidalHelper_getVidalAPIPath;
};

/// True for the bases whose session the end of the program closes.
inline bool AUneSession(const QString& typeBase)
{
    return typeBase == QLatin1String("TVS") || typeBase == QLatin1String("VCD") ||
           typeBase == QLatin1String("VDE") || typeBase == QLatin1String("BDP");
}

/// True when the open bank is chosen.
inline bool EstPublique(const Banque& banque)
{
    return banque.ProduitBanque == kProduitPublic;
}

/// True when what the bank does not find is not there. False without a session, and in one whose start
/// failed: nothing could be asked then, and the doctor is to know.
inline bool BanqueRepond(const Banque& banque)
{
    return banque.Acces && !banque.SessionManquee;
}

/// True when the medications come from a bank, false in the local mode.
inline bool EnModeBanque(const Banque& banque)
{
    return banque.TypeBase != QLatin1String("BIP");
}

} // namespace drugbank
