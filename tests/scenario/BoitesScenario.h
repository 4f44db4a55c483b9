#pragma once

#include "outside/Boites.h"

#include <QVariantMap>

class QEventLoop;

namespace scenario {

/// Boxes that wait for the script's answer. While one is open it is the active modal window, so that the
/// program's windows lose and regain their activation as on a desktop.
class BoitesScenario : public outside::Boites
{
public:
    outside::Bouton Montre(const outside::Message& message) override;
    std::optional<QString> Demande(const outside::Saisie& saisie) override;
    std::optional<QString> Dossier(const QString& titre) override;
    std::optional<QString> Ouvre(const outside::ChoixFichier& choix) override;
    std::optional<QString> Enregistre(const outside::ChoixFichier& choix) override;
    std::optional<page::Police> ChoisitPolice(const page::Police& depart) override;
    std::optional<page::Couleur> ChoisitCouleur(page::Couleur depart) override;

    bool Ouverte() const { return !pile_.isEmpty(); }
    /// The box in front: kind, title, text, ...; empty without one.
    QVariantMap Description() const;
    /// Closes the box in front. Throws `Echec` without a box or with an answer that it does not take.
    void Repond(const QVariant& reponse);

private:
    struct Boite
    {
        QVariantMap Description;
        QVariant Reponse;
        QEventLoop* Boucle = nullptr;
    };

    QVariant Attends(const QVariantMap& description);
    std::optional<QString> AttendsTexte(const QVariantMap& description);

    QList<Boite*> pile_;
};

} // namespace scenario
