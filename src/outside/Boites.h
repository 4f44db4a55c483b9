#pragma once

#include "page/Police.h"

#include <QList>
#include <QString>
#include <optional>

namespace outside {

enum class Genre { Information, Question, QuestionInformation, Stop, Exclamation, Simple };
enum class Bouton { OK, Oui, Non, Annuler };

/// A message box. A line feed in `Texte` is '\n'. The first button answers Escape when nothing else fits.
struct Message
{
    outside::Genre Genre = Genre::Information;
    QString Texte;
    QList<Bouton> Boutons = {Bouton::OK};
    Bouton Defaut = Bouton::OK;
    QString Titre = QStringLiteral("Scriptelle");
};

/// An input box for one line of text.
struct Saisie
{
    QString Invite;
    QString Valeur;
    QString Titre = QStringLiteral("Scriptelle");
};

/// A file dialogue. `Filtre` is a description, "|" and the patterns: "Images (*.bmp;*.jpg)|*.bmp;*.jpg".
struct ChoixFichier
{
    QString Titre;
    QString Filtre;
    QString Depart;
};

/// Every box and common dialogue of the program: the one door to them. All of them wait for the answer.
class Boites
{
public:
    virtual ~Boites() = default;

    virtual Bouton Montre(const Message& message) = 0;
    /// The text typed, nothing on Cancel. Callers that make no difference take `value_or(QString())`.
    virtual std::optional<QString> Demande(const Saisie& saisie) = 0;
    /// A directory of the file system, without a trailing separator (a drive root keeps letter and colon).
    virtual std::optional<QString> Dossier(const QString& titre) = 0;
    virtual std::optional<QString> Ouvre(const ChoixFichier& choix) = 0;
    virtual std::optional<QString> Enregistre(const ChoixFichier& choix) = 0;
    virtual std::optional<page::Police> ChoisitPolice(const page::Police& depart) = 0;
    virtual std::optional<page::Couleur> ChoisitCouleur(page::Couleur depart) = 0;

    void Information(const QString& texte) { Montre({.Genre = Genre::Information, .Texte = texte}); }
    void Stop(const QString& texte) { Montre({.Genre = Genre::Stop, .Texte = texte}); }
    void Exclamation(const QString& texte) { Montre({.Genre = Genre::Exclamation, .Texte = texte}); }
    void Simple(const QString& texte) { Montre({.Genre = Genre::Simple, .Texte = texte}); }

    /// Yes and No under the question icon.
    bool Question(const QString& texte, Bouton defaut = Bouton::Oui)
    {
        return OuiNon(Genre::Question, texte, defaut);
    }
    /// Yes and No under the information icon.
    bool QuestionInformation(const QString& texte, Bouton defaut = Bouton::Oui)
    {
        return OuiNon(Genre::QuestionInformation, texte, defaut);
    }

private:
    bool OuiNon(Genre genre, const QString& texte, Bouton defaut)
    {
        return Montre({genre, texte, {Bouton::Oui, Bouton::Non}, defaut}) == Bouton::Oui;
    }
};

} // namespace outside
