#pragma once

#include <QString>

namespace medication {

/// One candidate of the picker's tree.
struct Noeud
{
    QString Texte;
    QString Etiquette;  ///< the tag: `num` of `BddMed`, "1" of a personal entry, or the `InfoPack` of a pack
    bool Utile = false; ///< prescribed before: bold, in blue on yellow
    bool operator==(const Noeud&) const = default;
};

/// The two boxes of the medication chosen.
struct Saisie
{
    QString TxtMedoc;
    QString TxtPoso;
    bool operator==(const Saisie&) const = default;
};

} // namespace medication
