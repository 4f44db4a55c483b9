#pragma once

#include <QString>

/// What the settings' procedures say to the doctor.
namespace settings::messages {

inline QString PasDImprimante()
{
    return QStringLiteral("Vous n'avez pas sélectionné l'imprimamte !");
}

} // namespace settings::messages
