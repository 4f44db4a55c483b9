#pragma once

namespace startup {
struct Chemins;
struct Medecins;
} // namespace startup
namespace patients {
struct Patient;
}
namespace prescription {
struct Ordonnance;
struct Apercu;
struct Impression;
} // namespace prescription
namespace settings {
struct Reglages;
}
namespace drugbank {
struct Banque;
class Seance;
} // namespace drugbank
namespace certificates {
struct Certificat;
}
namespace medication {
struct Choix;
}
namespace storage {
class Bases;
}
namespace outside {
class Boites;
class Imprimantes;
class Horloge;
class Plateau;
class DemarrageSysteme;
class Lanceur;
} // namespace outside

namespace application {

class Signaux;

/// The outer edge, one real implementation or one for tests.
struct Dehors
{
    outside::Boites& Boites;
    outside::Imprimantes& Imprimantes;
    outside::Horloge& Horloge;
    outside::Plateau& Plateau;
    outside::DemarrageSysteme& DemarrageSysteme;
    outside::Lanceur& Lanceur;
};

/// References to everything that `Application` owns. Windows and the procedures between subsystems take
/// it; a procedure inside a subsystem takes the narrowest struct that it needs.
struct Contexte
{
    startup::Chemins& Chemins;
    startup::Medecins& Medecins;
    patients::Patient& Patient;
    prescription::Ordonnance& Ordonnance;
    prescription::Apercu& Apercu;
    prescription::Impression& Impression;
    settings::Reglages& Reglages;
    drugbank::Banque& Banque;
    drugbank::Seance& Seance;
    certificates::Certificat& Certificat;
    medication::Choix& Choix;
    storage::Bases& Bases;
    application::Dehors Dehors;
    application::Signaux& Signaux;
};

} // namespace application
