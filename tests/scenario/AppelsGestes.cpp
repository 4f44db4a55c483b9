#include "scenario/Clavier.h"
#include "scenario/Echec.h"
#include "scenario/Langage.h"
#include "scenario/Lecture.h"
#include "scenario/Souris.h"

#include <QApplication>
#include <QDir>

namespace scenario {

namespace {

using Changement = void (QWidget::*)();

} // namespace

void Langage::AjouteGeste(const QString& nom, int minimum, int maximum,
                          std::function<void(const Controle&, const Valeurs&)> geste, SurGris surGris)
{
    Ajoute(nom, minimum, maximum, [this, geste, surGris](const Valeurs& valeurs) {
        const QString controle = valeurs.Texte(0);
        AttendsAccessible(controle, surGris);
        if (relais_.Lit([&controle] { return !ObstacleGris(controle).isEmpty(); }).toBool()) {
            return QVariant();
        }
        const auto active = relais_.Lit([&controle] {
            return QApplication::activePopupWidget() || Trouve(controle).Fenetre->isActiveWindow();
        });
        if (!active.toBool()) {
            relais_.Agit([controle] { Trouve(controle).Fenetre->activateWindow(); });
        }
        relais_.Agit([geste, controle, valeurs] { geste(Trouve(controle), valeurs); });
        return QVariant();
    });
}

void Langage::AjouteGestes()
{
    const auto ajouteClic = [this](const QString& nom, Geste geste) {
        AjouteGeste(
            nom, 1, 2,
            [geste](const Controle& controle, const Valeurs& valeurs) {
                Clique(controle, geste, valeurs.Brute(1));
            },
            SurGris::Ignore);
    };
    ajouteClic(QStringLiteral("clic"), Geste::Clic);
    ajouteClic(QStringLiteral("doubleClic"), Geste::DoubleClic);
    ajouteClic(QStringLiteral("clicDroit"), Geste::ClicDroit);
    AjouteGeste(QStringLiteral("choisir"), 2, 2, [](const Controle& controle, const Valeurs& valeurs) {
        Choisit(controle, valeurs.Brute(1));
    });
    AjouteGeste(QStringLiteral("cocher"), 2, 2, [](const Controle& controle, const Valeurs& valeurs) {
        Coche(controle, valeurs.Booleen(1));
    });
    AjouteGeste(QStringLiteral("caret"), 2, 2, [](const Controle& controle, const Valeurs& valeurs) {
        PlaceCurseur(controle, valeurs.Entier(1));
    });
    AjouteGeste(QStringLiteral("glisser"), 3, 3, [](const Controle& controle, const Valeurs& valeurs) {
        Glisse(controle, valeurs.Brute(1), Trouve(valeurs.Texte(2)));
    });
}

void Langage::AjouteClavier()
{
    AjouteGeste(QStringLiteral("__caractere"), 3, 3, [](const Controle& controle, const Valeurs& valeurs) {
        TapeCaractere(controle, valeurs.Texte(1), valeurs.Booleen(2));
    });
    AjouteGeste(QStringLiteral("saisir"), 2, 2,
                [](const Controle& controle, const Valeurs& valeurs) { Saisit(controle, valeurs.Texte(1)); });
    AjouteGeste(QStringLiteral("touche"), 2, 2, [](const Controle& controle, const Valeurs& valeurs) {
        TapeTouche(controle, valeurs.Texte(1));
    });
    AjouteGeste(QStringLiteral("focus"), 1, 1,
                [](const Controle& controle, const Valeurs&) { DonneFocus(controle); });
}

void Langage::AjouteFenetres()
{
    AjouteGeste(QStringLiteral("fermer"), 1, 1,
                [](const Controle& controle, const Valeurs&) { controle.Fenetre->close(); });
    const auto ajouteEtat = [this](const QString& nom, Changement changement) {
        Ajoute(nom, 1, 1, [this, changement](const Valeurs& valeurs) {
            const QString fenetre = valeurs.Texte(0);
            AttendsExistence(fenetre);
            relais_.Agit([fenetre, changement] { (Trouve(fenetre).Fenetre->*changement)(); });
            return QVariant();
        });
    };
    ajouteEtat(QStringLiteral("agrandir"), &QWidget::showMaximized);
    ajouteEtat(QStringLiteral("reduire"), &QWidget::showMinimized);
    ajouteEtat(QStringLiteral("restaurer"), &QWidget::showNormal);
    Ajoute(QStringLiteral("icone"), 1, 1, [this](const Valeurs& valeurs) {
        const QString bouton = valeurs.Texte(0);
        if (bouton != QLatin1String("gauche") && bouton != QLatin1String("droit")) {
            throw Echec{QStringLiteral("icone attend \"gauche\" ou \"droit\"")};
        }
        const bool gauche = bouton == QLatin1String("gauche");
        relais_.Agit([this, gauche] {
            session_.CliqueIcone(gauche ? outside::Plateau::Clic::Gauche : outside::Plateau::Clic::Droit);
        });
        return QVariant();
    });
    Ajoute(QStringLiteral("capture"), 1, 1, [this](const Valeurs& valeurs) {
        const QString chemin = QDir(session_.Sortie).filePath(valeurs.Texte(0) + QStringLiteral(".png"));
        return relais_.Lit([&chemin] {
            QWidget* fenetre = QApplication::activeWindow();
            if (!fenetre || !fenetre->grab().save(chemin)) {
                throw Echec{QStringLiteral("la capture « %1 » ne peut pas être faite").arg(chemin)};
            }
            return QVariant();
        });
    });
}

} // namespace scenario
