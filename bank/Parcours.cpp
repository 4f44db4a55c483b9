#include "bank/Parcours.h"

namespace banque {

void Parcours::Annonce(qint64 faites, qint64 total) const
{
    if (avancement_ && !avancement_(nom_, faites, total)) {
        throw Interruption(messages::Interrompu(), common::CheminAffiche(chemin_));
    }
}

void Parcours::Compte(int numero, const Motifs& motifs, const Sort& sort, BilanFichier& fichier)
{
    const QString refus = motifs.Refus.isEmpty() ? sort.Refus : motifs.Refus;
    if (!refus.isEmpty()) {
        ++fichier.Refusees;
        fichier.Remarques.append({Remarque::Genre::Refusee, numero, refus});
        return;
    }
    if (!sort.Ecartee.isEmpty()) {
        ++fichier.Ecartees[sort.Ecartee];
        return;
    }
    ++fichier.Gardees;
    for (const QString& correction : motifs.Corrections) {
        fichier.Remarques.append({Remarque::Genre::Corrigee, numero, correction});
    }
    if (!sort.Correction.isEmpty()) {
        fichier.Remarques.append({Remarque::Genre::Corrigee, numero, sort.Correction});
    }
}

/// A few bad lines are left out; more than one in ten means another file or a new format, and a bank made
/// of the rest would be full of holes.
void Parcours::VerifieForme(const BilanFichier& fichier) const
{
    const QString lieu = common::CheminAffiche(chemin_);
    if (fichier.Lues == 0) {
        throw common::Erreur(messages::FichierVide(nom_), lieu);
    }
    constexpr int kUneSur = 10;
    if (fichier.Refusees * kUneSur > fichier.Lues) {
        const auto premiere =
            std::find_if(fichier.Remarques.begin(), fichier.Remarques.end(),
                         [](const Remarque& r) { return r.Genre == Remarque::Genre::Refusee; });
        throw common::Erreur(
            messages::TropDeRefus(nom_, fichier.Refusees, fichier.Lues, premiere->Ligne, premiere->Motif),
            lieu);
    }
}

/// A last line that breaks off comes from a download that did: what follows is missing too.
void Parcours::Coupe(int ligne) const
{
    throw common::Erreur(messages::FichierCoupe(nom_, ligne), common::CheminAffiche(chemin_));
}

} // namespace banque
