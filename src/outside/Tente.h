#pragma once

#include "common/Erreur.h"
#include "outside/Boites.h"
#include "outside/messages.h"

namespace outside {

/// Tells a failure in a stop box, with its place.
inline void DitPanne(Boites& boites, const common::Erreur& erreur)
{
    boites.Stop(messages::Panne(erreur.Phrase(), erreur.Lieu()));
}

/// Runs one command. A failure is told and leaves the program as the command left it; false then. Only
/// `Erreur` is told: a defect of the program still shows.
template <typename Commande> bool Tente(Boites& boites, Commande&& commande)
{
    try {
        commande();
        return true;
    } catch (const common::Erreur& erreur) {
        DitPanne(boites, erreur);
        return false;
    }
}

} // namespace outside
