#pragma once

#include "settings/windows/FrmConfOrdo.h"

#include "application/windows/Style.h"
#include "page/windows/Feuille.h"
#include "prescription/Editeur.h"
#include "settings/FichiersReglages.h"
#include "settings/messages.h"
#include "settings/windows/FrmOptions.h"
#include "support/Cabinet.h"
#include "support/PageDeTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace settings {

/// The window shown, without waiting in it; `CmdRetour` is the tests' own way out.
struct ConfDeTest : Cabinet
{
    application::Fenetres Fenetres{Contexte};
    FrmConfOrdo* Fenetre = nullptr;

    explicit ConfDeTest(const std::function<void(ConfDeTest&)>& avant = {})
    {
        if (avant) {
            avant(*this);
        }
        ChargeLook(Etat.Reglages.Look, Etat.Bases.Ordo(Etat.Chemins.CheminMedecin));
        EcritMarges(Etat.Reglages.Marges, Etat.Chemins.CheminMedecin);
        EcritOptions(Etat.Reglages.Options, Etat.Chemins.CheminMedecin);
        ChargeReglages(Etat.Reglages, Etat.Chemins.CheminMedecin);
        Fenetre = &Fenetres.Donne<FrmConfOrdo>();
        Fenetre->show();
        Fenetre->activateWindow();
        QApplication::processEvents();
    }

    template <typename Controle> Controle& Un(const char* nom) const
    {
        auto* controle = Fenetre->findChild<Controle*>(QLatin1String(nom));
        if (!controle) {
            qFatal("%s", nom);
        }
        return *controle;
    }
    QLineEdit& Champ(const char* nom) const { return Un<QLineEdit>(nom); }
    void Clique(const char* nom) const
    {
        QTest::mouseClick(&Un<QWidget>(nom), Qt::LeftButton);
        QApplication::processEvents();
    }
    void Saisit(const char* nom, const QString& texte) const
    {
        Champ(nom).setFocus();
        Champ(nom).setText(texte);
        QApplication::processEvents();
    }
    void Quitte(const char* vers) const
    {
        Un<QWidget>(vers).setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
    }
    QList<page::ItemTexte> Echantillon() const
    {
        return support::Textes(Un<page::Feuille>("PctMeP").DessinMontre());
    }
    bool Modifie() const { return Un<QLabel>("LblModifie").isVisible(); }
};

inline void Personnalise(ConfDeTest& conf)
{
    conf.Etat.Reglages.Options.SautPersonnalise = 1;
    conf.Etat.Reglages.Marges.HauteurSaut = 2.5F;
}

} // namespace settings
