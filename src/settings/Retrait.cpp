#include "settings/Retrait.h"

#include <limits>

namespace settings {

EffetDeTouche FrappeDansRang(ToucheDeRang touche, const PlaceDansRang& place)
{
    const qint16 espaces = place.EspacesLigne;
    if (!place.TexteAvant.trimmed().isEmpty()) {
        return {espaces, false};
    }
    switch (touche) {
    case ToucheDeRang::Espace: {
        const bool plein = espaces == std::numeric_limits<qint16>::max();
        return {plein ? espaces : static_cast<qint16>(espaces + 1), true};
    }
    case ToucheDeRang::Retour: {
        const bool recule = espaces > 0 && !place.Selection;
        return {recule ? static_cast<qint16>(espaces - 1) : espaces, recule};
    }
    case ToucheDeRang::Suppr:
        return {espaces, !place.Selection};
    case ToucheDeRang::Autre:
        break;
    }
    return {espaces, false};
}

} // namespace settings
