#include "scenario/Joueur.h"
#include "scenario/essai/FrmEssai.h"

namespace scenario {

namespace {

class ProgrammeEssai : public Programme
{
public:
    ProgrammeEssai(const application::Dehors& dehors, QString cheminProgramme)
        : dehors_(dehors), cheminProgramme_(std::move(cheminProgramme))
    {}

    void Demarre() override
    {
        fenetre_ = std::make_unique<FrmEssai>(dehors_, cheminProgramme_);
        connect(fenetre_.get(), &FrmEssai::Quitte, this, &Programme::Termine);
        fenetre_->show();
    }
    void ArreteSurErreur(const QString&, const QString&) override
    {
        fenetre_->hide();
        Q_EMIT Termine();
    }
    QVariant Valeur(const QString& nom) override
    {
        return nom == QLatin1String("Reponse") ? QVariant(42) : QVariant();
    }
    void ConfirmeImprimante(const QString&) override {}

private:
    application::Dehors dehors_;
    QString cheminProgramme_;
    std::unique_ptr<FrmEssai> fenetre_;
};

class FabriqueEssai : public Fabrique
{
public:
    void Prepare(QApplication&) override {}
    std::unique_ptr<Programme> Fait(const application::Dehors& dehors,
                                    const QString& cheminProgramme) override
    {
        return std::make_unique<ProgrammeEssai>(dehors, cheminProgramme);
    }
};

} // namespace

} // namespace scenario

int main(int argc, char** argv)
{
    scenario::FabriqueEssai fabrique;
    return scenario::Principal(argc, argv, fabrique);
}
