#pragma once

#include <QByteArray>
#include <QString>

namespace storage {

/// What the first bytes of a file say.
enum class FormatJet {
    Aucun,      ///< not the other engine's
    Lisible,    ///< Jet 3 or Jet 4
    Protege,    ///< the same with a password, or encoded
    TropRecent, ///< a later format of that engine
    Coupe,      ///< the beginning or a part of such a file
};

/// The format that the first bytes of a file of that size tell.
FormatJet FormatDeLEntete(const QByteArray& debut, qint64 taille);

/// The same of a file. One that cannot be read is `Aucun`: who opens it next tells why.
FormatJet LitFormatJet(const QString& chemin);

} // namespace storage
