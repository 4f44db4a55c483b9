#pragma once

#include "bank/Lecture.h"

#include <cstdlib>

namespace fuzz {

/// Reads the bytes as a public file: lines count upwards, each is refused with a reason or has a code of
/// eight digits at most, and no text keeps a tab or a line feed.
template <typename Fiche> int VerifieFichier(const uint8_t* octets, size_t taille)
{
    const QByteArrayView vue(octets, static_cast<qsizetype>(taille));
    int precedente = 0;
    for (const banque::LigneLue<Fiche>& ligne : banque::LitTout<Fiche>(vue).Lignes) {
        bool juste = ligne.Numero > precedente;
        precedente = ligne.Numero;
        if constexpr (requires { ligne.Valeur.Cis; }) {
            juste = juste && ligne.Valeur.Cis >= 0 && ligne.Valeur.Cis <= 99999999;
        }
        if constexpr (requires { ligne.Valeur.Texte; }) {
            juste = juste && !ligne.Valeur.Texte.contains(u'\t') && !ligne.Valeur.Texte.contains(u'\n');
        }
        if constexpr (requires { ligne.Valeur.Nom; }) {
            juste = juste && (!ligne.Valeur.Nom.isEmpty() || !ligne.Dites.Refus.isEmpty() ||
                              std::is_same_v<Fiche, banque::Mitm>);
        }
        if (!juste) {
            std::abort();
        }
    }
    return 0;
}

} // namespace fuzz
