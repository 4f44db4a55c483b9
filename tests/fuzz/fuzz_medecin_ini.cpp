#include "common/Fichiers.h"
#include "startup/MedecinIni.h"

#include <cstdlib>

using namespace startup;

/// Every doctor read can name a directory, and the readable lines come back when they are written.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t taille)
{
    const QByteArray texte(reinterpret_cast<const char*>(octets), static_cast<qsizetype>(taille));
    const ContenuMedecinIni lu = AnalyseMedecinIni(texte);
    QStringList lignes;
    QList<Medecin> medecins;
    for (const LigneMedecin& ligne : lu.Lignes) {
        if (ligne.Lisible()) {
            lignes.append(ligne.Brute);
            medecins.append(ligne.Lue);
            if (!common::NomDeFichierSur(ligne.Lue.Nom)) {
                std::abort();
            }
        }
    }
    const ContenuMedecinIni relu = AnalyseMedecinIni(TexteMedecinIni(lu.NbMedecins, lignes));
    QList<Medecin> relus;
    for (const LigneMedecin& ligne : relu.Lignes) {
        relus.append(ligne.Lue);
    }
    if (relu.Abime || relus != medecins || relu.NbMedecins != lu.NbMedecins || lu.NbMedecins < 0) {
        std::abort();
    }
    return 0;
}
