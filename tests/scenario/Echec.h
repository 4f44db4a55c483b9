#pragma once

#include <QString>

namespace scenario {

/// Why a call of the script cannot be done. It reaches the script as an error with its line.
struct Echec
{
    QString Phrase;
};

} // namespace scenario
