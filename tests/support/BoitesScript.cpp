#include "support/BoitesScript.h"

#include <QTest>

namespace support {

using outside::Bouton;
using outside::Genre;

namespace {

void Echoue(const QString& texte)
{
    QTest::qFail(qPrintable(texte), __FILE__, __LINE__);
}

QString NomDuGenre(Genre genre)
{
    static const QStringList noms = {QStringLiteral("information"),          QStringLiteral("question"),
                                     QStringLiteral("question_information"), QStringLiteral("stop"),
                                     QStringLiteral("exclamation"),          QStringLiteral("simple")};
    return noms.at(static_cast<int>(genre));
}

QString NomDuBouton(Bouton bouton)
{
    static const QStringList noms = {QStringLiteral("OK"), QStringLiteral("Oui"), QStringLiteral("Non"),
                                     QStringLiteral("Annuler")};
    return noms.at(static_cast<int>(bouton));
}

/// Text and default button of a message, to compare in one go.
QString Decrit(const QString& texte, Bouton defaut)
{
    return texte + QStringLiteral(" [") + NomDuBouton(defaut) + QLatin1Char(']');
}

} // namespace

BoitesScript::~BoitesScript()
{
    for (const Etape& etape : std::as_const(etapes_)) {
        Echoue(QStringLiteral("boîte attendue, jamais montrée : ") + etape.Genre + QLatin1Char(' ') +
               etape.Description);
    }
}

BoitesScript& BoitesScript::Ajoute(Etape etape)
{
    etapes_.append(std::move(etape));
    return *this;
}

BoitesScript& BoitesScript::Attend(Genre genre, const QString& texte, Bouton reponse, Bouton defaut)
{
    return Ajoute({NomDuGenre(genre), Decrit(texte, defaut), false, reponse});
}

BoitesScript& BoitesScript::AttendInformation(const QString& texte)
{
    return Attend(Genre::Information, texte, Bouton::OK);
}

BoitesScript& BoitesScript::AttendStop(const QString& texte)
{
    return Attend(Genre::Stop, texte, Bouton::OK);
}

BoitesScript& BoitesScript::AttendQuestion(const QString& texte, Bouton reponse, Bouton defaut)
{
    return Attend(Genre::Question, texte, reponse, defaut);
}

BoitesScript& BoitesScript::AttendQuestionInformation(const QString& texte, Bouton reponse)
{
    return Attend(Genre::QuestionInformation, texte, reponse, Bouton::Oui);
}

BoitesScript& BoitesScript::AttendContenant(Genre genre, const QString& morceau, Bouton reponse)
{
    return Ajoute({NomDuGenre(genre), morceau, true, reponse});
}

BoitesScript& BoitesScript::AttendSaisie(const QString& invite, const Texte& reponse, const QString& valeur)
{
    return Ajoute({QStringLiteral("saisie"), invite + QStringLiteral(" <") + valeur + QLatin1Char('>'), false,
                   reponse});
}

BoitesScript& BoitesScript::AttendDossier(const QString& titre, const Texte& reponse)
{
    return Ajoute({QStringLiteral("dossier"), titre, false, reponse});
}

BoitesScript& BoitesScript::AttendOuvre(const QString& titre, const Texte& reponse)
{
    return Ajoute({QStringLiteral("fichier"), titre, false, reponse});
}

BoitesScript& BoitesScript::AttendEnregistre(const QString& titre, const Texte& reponse)
{
    return Ajoute({QStringLiteral("enregistrer"), titre, false, reponse});
}

BoitesScript& BoitesScript::AttendPolice(const std::optional<page::Police>& reponse)
{
    return Ajoute({QStringLiteral("police"), {}, false, reponse});
}

BoitesScript& BoitesScript::AttendCouleur(const std::optional<page::Couleur>& reponse)
{
    return Ajoute({QStringLiteral("couleur"), {}, false, reponse});
}

template <typename Reponse>
Reponse BoitesScript::Joue(const QString& genre, const QString& description, const Reponse& sinon)
{
    if (etapes_.isEmpty()) {
        Echoue(QStringLiteral("boîte imprévue : ") + genre + QLatin1Char(' ') + description);
        return sinon;
    }
    const Etape& etape = etapes_.constFirst();
    const bool memeTexte =
        etape.Partiel ? description.contains(etape.Description) : description == etape.Description;
    if (etape.Genre != genre || !memeTexte) {
        Echoue(QStringLiteral("boîte attendue : %1 %2\nobtenue : %3 %4")
                   .arg(etape.Genre, etape.Description, genre, description));
        return sinon;
    }
    return std::get<Reponse>(etapes_.takeFirst().Reponse);
}

Bouton BoitesScript::Montre(const outside::Message& message)
{
    const Bouton sinon = message.Boutons.contains(Bouton::Non) ? Bouton::Non : Bouton::OK;
    const Bouton reponse = Joue(NomDuGenre(message.Genre), Decrit(message.Texte, message.Defaut), sinon);
    if (!message.Boutons.contains(reponse)) {
        Echoue(QStringLiteral("la boîte n'a pas le bouton ") + NomDuBouton(reponse));
    }
    return reponse;
}

BoitesScript::Texte BoitesScript::Demande(const outside::Saisie& saisie)
{
    return Joue(QStringLiteral("saisie"),
                saisie.Invite + QStringLiteral(" <") + saisie.Valeur + QLatin1Char('>'), Texte());
}

BoitesScript::Texte BoitesScript::Dossier(const QString& titre)
{
    return Joue(QStringLiteral("dossier"), titre, Texte());
}

BoitesScript::Texte BoitesScript::Ouvre(const outside::ChoixFichier& choix)
{
    return Joue(QStringLiteral("fichier"), choix.Titre, Texte());
}

BoitesScript::Texte BoitesScript::Enregistre(const outside::ChoixFichier& choix)
{
    return Joue(QStringLiteral("enregistrer"), choix.Titre, Texte());
}

std::optional<page::Police> BoitesScript::ChoisitPolice(const page::Police&)
{
    return Joue(QStringLiteral("police"), QString(), std::optional<page::Police>());
}

std::optional<page::Couleur> BoitesScript::ChoisitCouleur(page::Couleur)
{
    return Joue(QStringLiteral("couleur"), QString(), std::optional<page::Couleur>());
}

} // namespace support
