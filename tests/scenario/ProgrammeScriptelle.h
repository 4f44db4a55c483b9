#pragma once

#include "application/windows/Application.h"
#include "scenario/Programme.h"

namespace scenario {

/// Scriptelle itself, with its real windows and storage.
class ProgrammeScriptelle : public Programme
{
    Q_OBJECT

public:
    ProgrammeScriptelle(const application::Dehors& dehors, const QString& cheminProgramme);

    void Demarre() override;
    void ArreteSurErreur(const QString& phrase, const QString& lieu) override;
    QVariant Valeur(const QString& nom) override;
    void Touche(const QString& fenetre) override;
    void ConfirmeImprimante(const QString& nom) override;

private:
    void Fin();

    application::Application application_;
    bool fini_ = false;
};

class FabriqueScriptelle : public Fabrique
{
public:
    void Prepare(QApplication& application) override;
    std::unique_ptr<Programme> Fait(const application::Dehors& dehors,
                                    const QString& cheminProgramme) override;
};

} // namespace scenario
