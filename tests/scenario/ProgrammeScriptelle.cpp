#include "scenario/ProgrammeScriptelle.h"

#include "application/Valeurs.h"
#include "application/windows/Style.h"
#include "drugbank/windows/FrmI.h"
#include "medication/windows/FrmGEN.h"
#include "prescription/windows/FrmOrdo.h"
#include "scenario/Controles.h"
#include "settings/FichiersReglages.h"
#include "startup/Installation.h"
#include "startup/windows/FrmDepart.h"
#include "startup/windows/FrmMedecins.h"

namespace scenario {

ProgrammeScriptelle::ProgrammeScriptelle(const application::Dehors& dehors, const QString& cheminProgramme)
    : application_(dehors, cheminProgramme, startup::PrepareInstallation(cheminProgramme))
{
    connect(&application_, &application::Application::Termine, this, &ProgrammeScriptelle::Fin);
}

void ProgrammeScriptelle::Demarre()
{
    if (!application_.Demarre()) {
        Fin();
    }
}

void ProgrammeScriptelle::ArreteSurErreur(const QString& phrase, const QString& lieu)
{
    application_.ArretSurErreur(phrase, lieu);
}

QVariant ProgrammeScriptelle::Valeur(const QString& nom)
{
    if (nom == QLatin1String("FenetreActive")) {
        const QWidget* editeur = TrouveFenetre(QStringLiteral("FrmOrdo"));
        return editeur && editeur->isActiveWindow() ? 1 : 0;
    }
    return application::Valeur(application_.Contexte(), nom);
}

void ProgrammeScriptelle::Touche(const QString& fenetre)
{
    application::Fenetres& fenetres = application_.Fenetres();
    if (fenetre == QLatin1String("FrmDepart")) {
        fenetres.Donne<startup::FrmDepart>();
    } else if (fenetre == QLatin1String("FrmMedecins")) {
        fenetres.Donne<startup::FrmMedecins>();
    } else if (fenetre == QLatin1String("FrmOrdo")) {
        fenetres.Donne<prescription::FrmOrdo>();
    } else if (fenetre == QLatin1String("FrmGEN")) {
        fenetres.Donne<medication::FrmGEN>();
    } else if (fenetre == QLatin1String("FrmI")) {
        fenetres.Donne<drugbank::FrmI>();
    }
}

void ProgrammeScriptelle::ConfirmeImprimante(const QString& nom)
{
    application::Contexte& contexte = application_.Contexte();
    contexte.Reglages.Options.Imprimante = nom;
    contexte.Impression.EtatImprimante = 2;
    settings::EcritOptions(contexte.Reglages.Options, contexte.Chemins.CheminMedecin);
}

void ProgrammeScriptelle::Fin()
{
    if (!fini_) {
        fini_ = true;
        Q_EMIT Termine();
    }
}

void FabriqueScriptelle::Prepare(QApplication& application)
{
    application::style::Installe(application);
}

std::unique_ptr<Programme> FabriqueScriptelle::Fait(const application::Dehors& dehors,
                                                    const QString& cheminProgramme)
{
    return std::make_unique<ProgrammeScriptelle>(dehors, cheminProgramme);
}

} // namespace scenario
