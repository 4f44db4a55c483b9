#pragma once

#include <QDate>
#include <QString>
#include <optional>

namespace banque {

/// What a bank file says of itself.
struct InformationBanque
{
    QDate DateDonnees;
    QDate Expiration;
    QString Nature = {}; ///< what its data are when they are not the whole public base
    int Specialites = 0;
    int Interactions = 0; ///< 0 for a bank made without the thesaurus
};

/// Reads it; nothing when there is no file, or none of the present form. The file is open during the call
/// alone, and may lie where nothing can be written.
std::optional<InformationBanque> LitInformation(const QString& chemin);

} // namespace banque
