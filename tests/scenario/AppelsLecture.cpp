#include "scenario/Conversions.h"
#include "scenario/Echec.h"
#include "scenario/Langage.h"
#include "scenario/Lecture.h"

#include <QApplication>

namespace scenario {

void Langage::AjouteLecture(const QString& nom, int maximum,
                            std::function<QVariant(const Controle&, const Valeurs&)> lecture)
{
    Ajoute(nom, 1, maximum, [this, lecture](const Valeurs& valeurs) {
        const QString controle = valeurs.Texte(0);
        Touche(controle.section(QLatin1Char('.'), 0, 0));
        AttendsExistence(controle);
        return relais_.Lit([&] { return lecture(Trouve(controle), valeurs); });
    });
}

void Langage::AjouteLectures()
{
    AjouteLecture(QStringLiteral("texte"), 1,
                  [](const Controle& controle, const Valeurs&) { return Texte(controle); });
    AjouteLecture(QStringLiteral("lignes"), 1,
                  [](const Controle& controle, const Valeurs&) { return Lignes(controle); });
    AjouteLecture(QStringLiteral("donnees"), 1,
                  [](const Controle& controle, const Valeurs&) { return Donnees(controle); });
    AjouteLecture(QStringLiteral("etiquettes"), 1,
                  [](const Controle& controle, const Valeurs&) { return Donnees(controle); });
    AjouteLecture(QStringLiteral("selection"), 1,
                  [](const Controle& controle, const Valeurs&) { return Selection(controle); });
    AjouteLecture(QStringLiteral("coche"), 1,
                  [](const Controle& controle, const Valeurs&) { return EtatCoche(controle); });
    AjouteLecture(QStringLiteral("actif"), 1,
                  [](const Controle& controle, const Valeurs&) { return EstActif(controle); });
    AjouteLecture(QStringLiteral("feuille"), 1,
                  [](const Controle& controle, const Valeurs&) { return Feuille(controle); });
    AjouteLecture(QStringLiteral("aspect"), 2, [](const Controle& controle, const Valeurs& valeurs) {
        return Aspect(controle, valeurs.Brute(1));
    });
    AjouteLecture(QStringLiteral("titre"), 1,
                  [](const Controle& controle, const Valeurs&) { return controle.Fenetre->windowTitle(); });
}

void Langage::AjouteEtats()
{
    Ajoute(QStringLiteral("visible"), 1, 1, [this](const Valeurs& valeurs) {
        const QString controle = valeurs.Texte(0);
        return relais_.Lit([&controle] {
            return TrouveFenetre(controle.section(QLatin1Char('.'), 0, 0)) && EstVisible(Trouve(controle));
        });
    });
    Ajoute(QStringLiteral("ouverte"), 1, 1, [this](const Valeurs& valeurs) {
        const QString nom = valeurs.Texte(0);
        return relais_.Lit([&nom] {
            const QWidget* fenetre = TrouveFenetre(nom);
            return fenetre && fenetre->isVisible();
        });
    });
    Ajoute(QStringLiteral("etat"), 1, 1, [this](const Valeurs& valeurs) {
        const QString nom = valeurs.Texte(0);
        return relais_.Lit([&nom] { return EtatFenetre(TrouveFenetre(nom)); });
    });
    Ajoute(QStringLiteral("fenetreActive"), 0, 0, [this](const Valeurs&) {
        return relais_.Lit([] {
            const QWidget* fenetre = QApplication::activeWindow();
            return fenetre ? fenetre->objectName() : QString();
        });
    });
    Ajoute(QStringLiteral("valeur"), 1, 1, [this](const Valeurs& valeurs) {
        const QString nom = valeurs.Texte(0);
        const QVariant valeur = relais_.Lit([&] { return session_.Valeur(nom); });
        return valeur.isValid() ? valeur
                                : throw Echec{QStringLiteral("la variable « %1 » n'existe pas").arg(nom)};
    });
}

void Langage::AjouteBoites()
{
    Ajoute(QStringLiteral("lancer"), 0, 0, [this](const Valeurs&) {
        relais_.Agit([this] { session_.Lance(); });
        return QVariant();
    });
    Ajoute(QStringLiteral("boite"), 0, 0, [this](const Valeurs&) {
        AttendsBoite();
        return relais_.Lit([this] { return QVariant(session_.Boites.Description()); });
    });
    Ajoute(QStringLiteral("repondre"), 1, 1, [this](const Valeurs& valeurs) {
        const QVariant reponse = valeurs.Brute(0);
        AttendsBoite();
        relais_.Agit([this, reponse] { session_.Boites.Repond(reponse); });
        return QVariant();
    });
    Ajoute(QStringLiteral("__boiteOuverte"), 0, 0, [this](const Valeurs&) {
        return relais_.Lit([this]() -> QVariant {
            return session_.Boites.Ouverte() ? session_.Boites.Description()[QStringLiteral("texte")] : Nul();
        });
    });
    Ajoute(QStringLiteral("__confirmeImprimante"), 0, 0, [this](const Valeurs&) {
        return relais_.Lit([this] {
            session_.EnCours().ConfirmeImprimante(session_.Imprimantes.ParDefaut());
            return QVariant();
        });
    });
}

} // namespace scenario
