#include "scenario/BoitesScenario.h"

#include "scenario/Conversions.h"
#include "scenario/Echec.h"

#include <QDialog>
#include <QEventLoop>

namespace scenario {

namespace {

QString NomGenre(outside::Genre genre)
{
    switch (genre) {
    case outside::Genre::Information:
        return QStringLiteral("information");
    case outside::Genre::Question:
        return QStringLiteral("question");
    case outside::Genre::QuestionInformation:
        return QStringLiteral("question_information");
    case outside::Genre::Stop:
        return QStringLiteral("stop");
    case outside::Genre::Exclamation:
        return QStringLiteral("exclamation");
    case outside::Genre::Simple:
        return QStringLiteral("simple");
    }
    return {};
}

QString NomBouton(outside::Bouton bouton)
{
    switch (bouton) {
    case outside::Bouton::OK:
        return QStringLiteral("OK");
    case outside::Bouton::Oui:
        return QStringLiteral("Oui");
    case outside::Bouton::Non:
        return QStringLiteral("Non");
    case outside::Bouton::Annuler:
        return QStringLiteral("Annuler");
    }
    return {};
}

QVariantMap Decrit(const QString& genre, const QString& titre, const QString& texte)
{
    return {{QStringLiteral("genre"), genre},
            {QStringLiteral("titre"), titre},
            {QStringLiteral("texte"), texte},
            {QStringLiteral("boutons"), QVariantList{QStringLiteral("OK"), QStringLiteral("Annuler")}},
            {QStringLiteral("defaut"), QStringLiteral("OK")},
            {QStringLiteral("valeur"), Nul()},
            {QStringLiteral("filtre"), QString()},
            {QStringLiteral("depart"), QString()}};
}

QVariantMap DecritFichier(const QString& genre, const outside::ChoixFichier& choix)
{
    QVariantMap description = Decrit(genre, choix.Titre, choix.Titre);
    description[QStringLiteral("valeur")] = QString();
    description[QStringLiteral("filtre")] = choix.Filtre;
    description[QStringLiteral("depart")] = choix.Depart;
    return description;
}

bool Accepte(const QVariantMap& description, const QVariant& reponse)
{
    const QString genre = description[QStringLiteral("genre")].toString();
    const bool texte = reponse.typeId() == QMetaType::QString;
    if (genre == QLatin1String("police")) {
        return EstNul(reponse) || reponse.typeId() == QMetaType::QVariantMap;
    }
    if (genre == QLatin1String("couleur")) {
        return EstNul(reponse) || EstNombre(reponse);
    }
    static const QStringList kTextes = {QStringLiteral("saisie"), QStringLiteral("dossier"),
                                        QStringLiteral("fichier"), QStringLiteral("enregistrer")};
    if (kTextes.contains(genre)) {
        return EstNul(reponse) || texte;
    }
    return texte && description[QStringLiteral("boutons")].toList().contains(reponse);
}

} // namespace

outside::Bouton BoitesScenario::Montre(const outside::Message& message)
{
    QVariantList boutons;
    for (const outside::Bouton bouton : message.Boutons) {
        boutons.append(NomBouton(bouton));
    }
    QVariantMap description = Decrit(NomGenre(message.Genre), message.Titre, message.Texte);
    description[QStringLiteral("boutons")] = boutons;
    description[QStringLiteral("defaut")] = NomBouton(message.Defaut);
    return message.Boutons.at(boutons.indexOf(Attends(description)));
}

std::optional<QString> BoitesScenario::Demande(const outside::Saisie& saisie)
{
    QVariantMap description = Decrit(QStringLiteral("saisie"), saisie.Titre, saisie.Invite);
    description[QStringLiteral("valeur")] = saisie.Valeur;
    return AttendsTexte(description);
}

std::optional<QString> BoitesScenario::Dossier(const QString& titre)
{
    return AttendsTexte(Decrit(QStringLiteral("dossier"), titre, titre));
}

std::optional<QString> BoitesScenario::Ouvre(const outside::ChoixFichier& choix)
{
    return AttendsTexte(DecritFichier(QStringLiteral("fichier"), choix));
}

std::optional<QString> BoitesScenario::Enregistre(const outside::ChoixFichier& choix)
{
    return AttendsTexte(DecritFichier(QStringLiteral("enregistrer"), choix));
}

std::optional<page::Police> BoitesScenario::ChoisitPolice(const page::Police& depart)
{
    QVariantMap description = Decrit(QStringLiteral("police"), {}, {});
    description[QStringLiteral("valeur")] = VersPoliceScript(depart);
    const QVariant reponse = Attends(description);
    return EstNul(reponse) ? std::nullopt : std::optional(DepuisPoliceScript(reponse.toMap(), depart));
}

std::optional<page::Couleur> BoitesScenario::ChoisitCouleur(page::Couleur depart)
{
    QVariantMap description = Decrit(QStringLiteral("couleur"), {}, {});
    description[QStringLiteral("valeur")] = depart;
    const QVariant reponse = Attends(description);
    return EstNul(reponse) ? std::nullopt : std::optional<page::Couleur>(reponse.toUInt());
}

QVariantMap BoitesScenario::Description() const
{
    return pile_.isEmpty() ? QVariantMap() : pile_.last()->Description;
}

void BoitesScenario::Repond(const QVariant& reponse)
{
    if (pile_.isEmpty()) {
        throw Echec{QStringLiteral("aucune boîte n'est ouverte")};
    }
    Boite& boite = *pile_.last();
    if (!Accepte(boite.Description, reponse)) {
        throw Echec{QStringLiteral("la boîte « %1 » ne prend pas la réponse « %2 »")
                        .arg(boite.Description[QStringLiteral("texte")].toString(), reponse.toString())};
    }
    boite.Reponse = reponse;
    boite.Boucle->quit();
}

QVariant BoitesScenario::Attends(const QVariantMap& description)
{
    QDialog fenetre;
    fenetre.setObjectName(QStringLiteral("Boite"));
    fenetre.setModal(true);
    QEventLoop boucle;
    Boite boite{description, {}, &boucle};
    pile_.append(&boite);
    fenetre.show();
    boucle.exec();
    pile_.removeOne(&boite);
    return boite.Reponse;
}

std::optional<QString> BoitesScenario::AttendsTexte(const QVariantMap& description)
{
    const QVariant reponse = Attends(description);
    return EstNul(reponse) ? std::nullopt : std::optional(reponse.toString());
}

} // namespace scenario
