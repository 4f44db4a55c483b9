#include "startup/windows/MenusDepart.h"

#include "application/windows/Style.h"

#include <QAction>
#include <QMenu>

namespace startup {

namespace {

QMenu* Menu(const char* nom, const QString& titre, QWidget* parent)
{
    auto* menu = new QMenu(titre, parent);
    menu->setObjectName(QLatin1String(nom));
    menu->setToolTipsVisible(true);
    return menu;
}

/// The entry's name and object name are one.
QAction* Entree(QMenu* menu, const char* nom, const QString& texte, const char* icone = nullptr)
{
    QAction* entree = menu->addAction(texte);
    entree->setObjectName(QLatin1String(nom));
    if (icone) {
        entree->setIcon(application::style::Icone(QLatin1String(icone)));
    }
    return entree;
}

} // namespace

MenusDepart::MenusDepart(QWidget* fenetre)
    : mnuOutils(Menu("mnuOutils", QStringLiteral("MenuOutils"), fenetre)),
      MnuAideInv(Menu("MnuAideInv", QStringLiteral("aide"), fenetre)),
      mnuInvisible(Menu("mnuInvisible", QStringLiteral("MenuInvisible"), fenetre))
{
    RemplitOutils();
    RemplitAide();
    RemplitInvisible();
}

void MenusDepart::RemplitOutils()
{
    mnuRepare =
        Entree(mnuOutils, "mnuRepare", QStringLiteral("&Réparer et compacter les bases de données"), "tools");
    mnuOutils->addSeparator();
    mnuLogo = Entree(mnuOutils, "mnuLogo", QStringLiteral("Insérer un &logo"), "image");
    mnuOutils->addSeparator();
    mnuBase = Entree(mnuOutils, "mnuBase", QStringLiteral("&Choisir la base de données de la pharmacie"),
                     "capsule");
    mnuOutils->addSeparator();
    mnuTransfertDonn = Entree(mnuOutils, "mnuTransfertDonn", QStringLiteral("&Transfert des données"), "hdd");
    mnuOutils->addSeparator();
    mnuMAJClef = Entree(
        mnuOutils, "mnuMAJClef",
        QStringLiteral("&Mise à jour des bases de  données sur support externe (clef USB  ou serveur)"),
        "usb-drive");
    mnuOutils->addSeparator();
    mnuJournal = Entree(mnuOutils, "mnuJournal", QStringLiteral("&Journal des ordonnances"), "journal-text");
    mnuOutils->addSeparator();
    mnuMajBanque = Entree(mnuOutils, "mnuMajBanque", QStringLiteral("Mettre à jour la base &publique…"),
                          "arrow-clockwise");
    mnuOutils->addSeparator();
    mnuRestaure =
        Entree(mnuOutils, "mnuRestaure", QStringLiteral("R&estaurer une sauvegarde…"), "clock-history");
}

void MenusDepart::RemplitAide()
{
    mnuAideOld = Entree(MnuAideInv, "mnuAideOld", QStringLiteral("&Aide"), "question-circle");
    mnuAideNew = Entree(MnuAideInv, "mnuAideNew", QStringLiteral("&Nouvelle version"), "file-earmark-pdf");
}

void MenusDepart::RemplitInvisible()
{
    mnuOrdonnance =
        Entree(mnuInvisible, "mnuOrdonnance", QStringLiteral("&Ordonnance"), "file-earmark-medical");
    mnuMinimiser = Entree(mnuInvisible, "mnuMinimiser", QStringLiteral("&Minimiser"), "dash-lg");
    mnuAccueil = Entree(mnuInvisible, "mnuAccueil", QStringLiteral("&Accueil"), "house");
    mnuOptions = Entree(mnuInvisible, "mnuOptions", QStringLiteral("O&ptions"), "gear");
    mnuHauteurN = Entree(mnuInvisible, "mnuHauteurN", QStringLiteral("&Saut de ligne normal"));
    mnuHauteurP =
        Entree(mnuInvisible, "mnuHauteurP", QStringLiteral("&Hauteur de saut de ligne personnalisée"));
    QMenu* aide = Menu("mnuAide", QStringLiteral("A&ide"), mnuInvisible);
    mnuInvisible->addMenu(aide);
    mnuAideOldIT = Entree(aide, "mnuAideOldIT", QStringLiteral("&Aide"));
    mnuAideNewIT = Entree(aide, "mnuAideNewIT", QStringLiteral("&Nouvelle version"));
    mnuAPropos = Entree(mnuInvisible, "mnuAPropos", QStringLiteral("A p&ropos"), "info-circle");
    mnuQuitter = Entree(mnuInvisible, "mnuQuitter", QStringLiteral("&Quitter"), "box-arrow-right");
    application::style::EntreeParDefaut(mnuInvisible, mnuQuitter);
}

} // namespace startup
