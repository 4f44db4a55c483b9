#pragma once

#include <QString>

/// What the subsystem says of interactions.
namespace drugbank::messages {

inline QString InteractionsIncompletes()
{
    return QStringLiteral("La banque n'a pas donné toutes les interactions.\r\n");
}

} // namespace drugbank::messages
