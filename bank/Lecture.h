#pragma once

#include "bank/Lecteurs.h"
#include "common/Fichiers.h"

#include <future>
#include <vector>

namespace banque {

/// One line of a file as it was read.
template <typename Fiche> struct LigneLue
{
    int Numero = 0;
    Fiche Valeur = {}; ///< of no meaning when the line is refused
    Motifs Dites = {};
};

/// A file as it was read, blank lines apart.
template <typename Fiche> struct FichierLu
{
    std::vector<LigneLue<Fiche>> Lignes;
    int Vides = 0;
    bool FinOuverte = false; ///< the last line has no end
};

template <typename Fiche> FichierLu<Fiche> LitTout(QByteArrayView octets)
{
    LecteurLignes lecteur(octets);
    FichierLu<Fiche> lu;
    lu.Lignes.reserve(static_cast<size_t>(lecteur.NombreDeLignes()));
    for (Ligne ligne; lecteur.Suivante(ligne);) {
        LigneLue<Fiche>& lue = lu.Lignes.emplace_back();
        lue.Numero = ligne.Numero;
        Lit(ligne, lue.Valeur, lue.Dites);
    }
    lu.Vides = lecteur.Vides();
    lu.FinOuverte = lecteur.FinOuverte();
    return lu;
}

/// Reads a file on a thread of its own, while another one is being written. Its failure is thrown where the
/// result is taken. No path gives an empty file.
template <typename Fiche> std::future<FichierLu<Fiche>> LanceLecture(const QString& chemin)
{
    return std::async(std::launch::async, [chemin] {
        return chemin.isEmpty() ? FichierLu<Fiche>() : LitTout<Fiche>(common::LitFichier(chemin));
    });
}

} // namespace banque
