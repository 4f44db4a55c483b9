#pragma once

#include "application/Contexte.h"
#include "outside/windows/BoitesQt.h"
#include "outside/windows/DemarrageSystemeQt.h"
#include "outside/windows/HorlogeSysteme.h"
#include "outside/windows/ImprimantesQt.h"
#include "outside/windows/LanceurQt.h"
#include "outside/windows/PlateauQt.h"

#include <QCoreApplication>

namespace outside {

/// The whole outer edge of the real program.
struct DehorsQt
{
    BoitesQt Boites;
    LanceurQt Lanceur;
    HorlogeSysteme Horloge;
    ImprimantesQt Imprimantes{Horloge, Lanceur, Boites};
    PlateauQt Plateau;
    DemarrageSystemeQt DemarrageSysteme{QCoreApplication::applicationFilePath()};

    application::Dehors References()
    {
        return {Boites, Imprimantes, Horloge, Plateau, DemarrageSysteme, Lanceur};
    }
};

} // namespace outside
