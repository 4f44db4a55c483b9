#include "scenario/Joueur.h"
#include "scenario/ProgrammeScriptelle.h"

int main(int argc, char** argv)
{
    scenario::FabriqueScriptelle fabrique;
    return scenario::Principal(argc, argv, fabrique);
}
