#pragma once

#include "application/windows/Fenetres.h"
#include "page/windows/Feuille.h"
#include "settings/messages.h"
#include "settings/windows/FrmEntete.h"
#include "startup/windows/ProgrammeDeTest.h"
#include "storage/Jeu.h"
#include "support/BaseDeTest.h"
#include "support/Cabinet.h"
#include "support/PageDeTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

/// The designer shown over a doctor at work.
struct Atelier : Cabinet
{
    application::Fenetres Fenetres{Contexte};
    settings::FrmEntete* Fenetre = nullptr;

    void Ouvre()
    {
        Fenetre = &Fenetres.Donne<settings::FrmEntete>();
        Fenetre->show();
        Fenetre->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(Fenetre));
    }

    template <typename Controle> Controle& Un(const char* nom)
    {
        return *Fenetre->findChild<Controle*>(QLatin1String(nom));
    }
    QLineEdit& Txt(int rang) { return Un<QLineEdit>(qPrintable(QStringLiteral("Txt(%1)").arg(rang))); }
    const page::Dessin& Feuille(const char* nom) { return Un<page::Feuille>(nom).Montree(); }
    void Clique(const char* nom) { Un<QPushButton>(nom).click(); }
    bool Modifie() { return Un<QLabel>("LblModifie").isVisibleTo(Fenetre); }
    storage::Base& Ordo() { return Etat.Bases.Ordo(Etat.Chemins.CheminMedecin); }
    QStringList Stockees() { return support::Lignes(Ordo(), QStringLiteral("Entete")); }
    qint16 Espaces(int rang) { return Etat.Reglages.SaisieEntete.EspacesLigne.at(static_cast<size_t>(rang)); }
};
