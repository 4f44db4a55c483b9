#pragma once

#include "outside/Boites.h"

namespace outside {

/// The system's boxes and common dialogues, in French, over the window in use.
class BoitesQt : public Boites
{
public:
    Bouton Montre(const Message& message) override;
    std::optional<QString> Demande(const Saisie& saisie) override;
    std::optional<QString> Dossier(const QString& titre) override;
    std::optional<QString> Ouvre(const ChoixFichier& choix) override;
    std::optional<QString> Enregistre(const ChoixFichier& choix) override;
    std::optional<page::Police> ChoisitPolice(const page::Police& depart) override;
    std::optional<page::Couleur> ChoisitCouleur(page::Couleur depart) override;
};

/// The button that Escape and the close box of a message stand for: Cancel, else No, else the first.
Bouton BoutonDEchappement(const Message& message);

/// A directory's path without its trailing separator; "E:/" gives "E:", "/" stays.
QString SansSeparateur(const QString& chemin);

} // namespace outside
