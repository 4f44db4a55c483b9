#pragma once

#include <QString>

namespace certificates {

/// The rule above and below a zone heading.
inline QString FiletDeBandeau()
{
    return QString(85, u'_');
}

/// The heading of the zone that the long-term illness pays for, as `TxtCert` takes it: "*" marks a word
/// for the page, the rule below hangs from a line feed of its own.
inline QString BandeauALD1()
{
    return FiletDeBandeau() + QStringLiteral("\r\n") + QString(12, u' ') +
           QStringLiteral("Prescriptions relatives au traitement de l'affection de longue durée reconnue "
                          "(liste ou hors liste)\r\n") +
           QString(62, u' ') + QStringLiteral("( AFFECTION* EXONERANTE* )\n") + FiletDeBandeau();
}

/// The heading of the zone of unrelated prescriptions.
inline QString BandeauALD2()
{
    return FiletDeBandeau() + QStringLiteral("\r\n") + QString(37, u' ') +
           QStringLiteral("Prescriptions SANS RAPPORT avec l'affection de longue durée\r\n") +
           QString(60, u' ') + QStringLiteral("( MALADIES* INTERCURRENTES* )\n") + FiletDeBandeau();
}

} // namespace certificates
