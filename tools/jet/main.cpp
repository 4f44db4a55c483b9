// Reads a Jet 3 or Jet 4 file and writes what Scriptelle keeps of it into a new SQLite file (see
// storage/ProtocoleJet.h). A process of its own, since the library may crash on a damaged file.
#include "Defaut.h"
#include "Ebauche.h"
#include "Lecture.h"
#include "Limites.h"
#include "storage/ProtocoleJet.h"

#include <cstdio>
#include <string_view>

namespace {

using storage::GenreBase;
namespace protocole = storage::jet;

int Dit(const std::exception& erreur, int code)
{
    std::fprintf(stderr, "scriptelle-jet: %s\n", erreur.what());
    return code;
}

} // namespace

int main(int nombre, char** arguments)
{
    const std::string_view genre = nombre == 4 ? arguments[3] : "";
    if (genre != protocole::kMedoc && genre != protocole::kOrdo) {
        std::fprintf(stderr, "scriptelle-jet FILE DRAFT %s|%s\n", protocole::kMedoc, protocole::kOrdo);
        return protocole::kUsage;
    }
    jet::PoseLimites(arguments[1]);
    jet::OublieReglages();
    try {
        jet::Convertit(arguments[1], arguments[2],
                       genre == protocole::kMedoc ? GenreBase::Medoc : GenreBase::Ordo);
        return 0;
    } catch (const jet::Defaut& defaut) {
        return Dit(defaut, protocole::kEndommage);
    } catch (const jet::NonEcrit& panne) {
        return Dit(panne, panne.Code);
    } catch (const std::exception& erreur) {
        return Dit(erreur, protocole::kIllisible);
    }
}
