#pragma once

#include "application/windows/Fenetres.h"
#include "settings/windows/FrmOptions.h"
#include "support/Cabinet.h"

#include <QPushButton>
#include <QTest>
#include <QTimer>

/// A doctor in front of his options.
struct PosteOptions : Cabinet
{
    application::Fenetres Fenetres{Contexte};

    template <typename Controle> static Controle& Un(const settings::FrmOptions& fenetre, const char* nom)
    {
        return *fenetre.findChild<Controle*>(QLatin1String(nom));
    }

    static void Presse(const settings::FrmOptions& fenetre, const char* nom)
    {
        Un<QAbstractButton>(fenetre, nom).click();
    }

    using Action = std::function<void(settings::FrmOptions&)>;

    /// Opens the dialogue on a tab and acts in it; a dialogue left open is a failure.
    void Pendant(int onglet, const Action& action)
    {
        auto& fenetre = Prepare(action);
        fenetre.Ouvre(onglet);
        Verifie();
    }

    /// The same at the first print of a run.
    bool PendantPremiereImpression(const Action& action)
    {
        auto& fenetre = Prepare(action);
        const bool suite = fenetre.OuvrePourPremiereImpression();
        Verifie();
        return suite;
    }

    QByteArray Fichier(const char* nom) const
    {
        return common::LitFichier(common::Joint(Etat.Chemins.CheminMedecin, QLatin1String(nom)));
    }

private:
    settings::FrmOptions& Prepare(const Action& action)
    {
        auto& fenetre = Fenetres.Donne<settings::FrmOptions>();
        restee_ = false;
        QTimer::singleShot(0, &fenetre, [&fenetre, action] { action(fenetre); });
        QTimer::singleShot(300, &fenetre, [this, &fenetre] {
            restee_ = true;
            fenetre.done(0);
        });
        return fenetre;
    }

    void Verifie()
    {
        QVERIFY(!restee_);
        QVERIFY(Fenetres.Presente<settings::FrmOptions>() == nullptr);
    }

    bool restee_ = false;
};
