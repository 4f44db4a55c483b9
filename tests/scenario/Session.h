#pragma once

#include "scenario/BoitesScenario.h"
#include "scenario/HorlogeScenario.h"
#include "scenario/ImprimantesScenario.h"
#include "scenario/Monde.h"
#include "scenario/Programme.h"
#include "support/DehorsFeint.h"

#include <QHash>

namespace scenario {

/// The program under test in its world, with the outer edge that the script scripts. It lives in the window
/// thread and is only touched there.
class Session : public QObject
{
    Q_OBJECT

public:
    /// `sortie`: where screenshots and a PDF file of each job are kept; empty for nowhere.
    Session(scenario::Monde monde, const QString& sortie, scenario::Fabrique& fabrique);
    ~Session() override;

    /// Starts the program anew. Throws `Echec` while one runs.
    void Lance();
    /// The running program. Throws `Echec` when none was started or when it has ended.
    Programme& EnCours() const;
    /// A variable of the running program, or a path of the one that ran last; invalid for an unknown name.
    QVariant Valeur(const QString& nom) const;
    /// The database file that "Medoc" or "Ordo" stands for: of the running program, of the one that ran last,
    /// or before the first start the one that an installation leaves. Any other text is a path.
    QString CheminBase(const QString& nom) const;
    /// True when a program was started and has ended; the script knows of it then.
    bool ConstateFin();
    /// A failure that no handler caught. The program is told; an end that the script does not notice counts.
    void ErreurNonGardee(const QString& phrase, const QString& lieu);
    /// True when a failure reached the net under the event loop, in this start or an earlier one.
    bool AEuUneErreur() const { return erreur_; }
    /// A click on the tray icon. Throws `Echec` when there is none.
    void CliqueIcone(outside::Plateau::Clic clic);
    /// What ended the program before its time; empty when nothing did.
    const QString& Accident() const { return accident_; }

    scenario::Monde Monde;
    /// Where screenshots go: the output directory, or the world without one.
    QString Sortie;
    scenario::Fabrique& Fabrique;
    HorlogeScenario Horloge;
    support::PlateauFeint Plateau;
    support::DemarrageSystemeFeint Demarrage;
    support::LanceurFeint Lanceur;
    BoitesScenario Boites;
    ImprimantesScenario Imprimantes;

private:
    void RetientChemins();
    void Libere();

    std::unique_ptr<Programme> programme_;
    bool fini_ = false;
    bool erreur_ = false;
    QString accident_;
    QHash<QString, QString> chemins_; // of the program that ran last
};

} // namespace scenario
