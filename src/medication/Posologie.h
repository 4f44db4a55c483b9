#pragma once

#include <QStringList>
#include <array>

namespace medication {

/// The indices of `CboP`.
enum PlaceCboP : int { kForme, kMatin, kMidi, kSoir, kCoucher, kRepas, kFrequence, kDuree, kNbCboP };

/// The texts of the eight boxes `CboP`, chosen or typed.
using ChoixPosologie = std::array<QString, kNbCboP>;

/// True for the boxes of quantities, `CboP(1)` to `CboP(4)`.
constexpr bool EstQuantite(int indice)
{
    return indice >= kMatin && indice <= kCoucher;
}

/// The caption of a box, without an Alt letter.
QString LegendeCboP(int indice);
/// The texts that a box offers, in their order.
QStringList ListeCboP(int indice);

/// The kinds of sentence.
enum class CasPosologie {
    DemandeBesoin, ///< the quantity for "en cas de besoin," is asked for
    Besoin,        ///< recomposed with the quantity known
    DemandeLibre,  ///< the quantity for "n'importe quand" is asked for
    Libre,         ///< recomposed with the quantity known
    Moments        ///< quantities at the moments of the day
};

/// The kind that the moment chosen and the box that last changed ask for.
CasPosologie CasDe(const ChoixPosologie& choix, int dernierCboP);
/// True for the two kinds that ask for the quantity.
bool DemandeQuantite(CasPosologie cas);

/// The sentence of the boxes when `dernierCboP`, 0 to 7, is the one that last changed. Its end comma is cut,
/// but not where the sentence is recomposed with the quantity known. `texteQuantite` is the quantity given
/// for "en cas de besoin," or "n'importe quand"; the other sentences do without.
QString EcritPoso(const ChoixPosologie& choix, int dernierCboP, const QString& texteQuantite);

/// A text that ends in a comma, blanks apart: trimmed and without it; any other text as it is.
QString CoupeVirgule(const QString& texte);
/// True while a number that the lists leave open is still an X, as in "(max X par jour)" or "du Xème".
bool ResteUnX(const QString& texte);
/// What the buttons hand over: trimmed, without an end comma.
QString PosologieRendue(const QString& texte);

} // namespace medication
