#pragma once

#include "outside/Boites.h"

#include <QVariant>
#include <variant>

namespace support {

/// Boxes that answer from a script. A box that is not the next one of the script fails the test, and so does
/// a script that was not used up when it dies. An unscripted box is answered Non or Cancel.
class BoitesScript : public outside::Boites
{
public:
    BoitesScript() = default;
    ~BoitesScript() override;

    using Texte = std::optional<QString>;

    /// A box with one button OK.
    BoitesScript& AttendInformation(const QString& texte);
    BoitesScript& AttendStop(const QString& texte);
    /// Any box; the whole text, the answer, and the button that must be the default.
    BoitesScript& Attend(outside::Genre genre, const QString& texte, outside::Bouton reponse,
                         outside::Bouton defaut = outside::Bouton::OK);
    BoitesScript& AttendQuestion(const QString& texte, outside::Bouton reponse,
                                 outside::Bouton defaut = outside::Bouton::Oui);
    BoitesScript& AttendQuestionInformation(const QString& texte, outside::Bouton reponse);
    /// A box whose text holds that piece, when the rest cannot be known.
    BoitesScript& AttendContenant(outside::Genre genre, const QString& morceau,
                                  outside::Bouton reponse = outside::Bouton::OK);
    BoitesScript& AttendSaisie(const QString& invite, const Texte& reponse, const QString& valeur = {});
    BoitesScript& AttendDossier(const QString& titre, const Texte& reponse);
    BoitesScript& AttendOuvre(const QString& titre, const Texte& reponse);
    BoitesScript& AttendEnregistre(const QString& titre, const Texte& reponse);
    BoitesScript& AttendPolice(const std::optional<page::Police>& reponse);
    BoitesScript& AttendCouleur(const std::optional<page::Couleur>& reponse);

    /// True when every scripted box was shown.
    bool Epuise() const { return etapes_.isEmpty(); }

    outside::Bouton Montre(const outside::Message& message) override;
    Texte Demande(const outside::Saisie& saisie) override;
    Texte Dossier(const QString& titre) override;
    Texte Ouvre(const outside::ChoixFichier& choix) override;
    Texte Enregistre(const outside::ChoixFichier& choix) override;
    std::optional<page::Police> ChoisitPolice(const page::Police& depart) override;
    std::optional<page::Couleur> ChoisitCouleur(page::Couleur depart) override;

private:
    struct Etape
    {
        QString Genre;
        QString Description;
        bool Partiel = false;
        std::variant<outside::Bouton, Texte, std::optional<page::Police>, std::optional<page::Couleur>>
            Reponse;
    };

    BoitesScript& Ajoute(Etape etape);
    template <typename Reponse>
    Reponse Joue(const QString& genre, const QString& description, const Reponse& sinon);

    QList<Etape> etapes_;
};

} // namespace support
