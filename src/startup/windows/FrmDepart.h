#pragma once

#include "application/windows/Fenetres.h"
#include "outside/Plateau.h"
#include "page/LignesEntete.h"
#include "page/windows/PorteDessin.h"
#include "startup/windows/ControlesDepart.h"
#include "startup/windows/MenusDepart.h"

#include <QImage>

namespace startup {

/// The launcher: the doctor and his letterhead, the way to the prescriptions, settings, tools and help.
/// Where the desktop has a tray, it hides itself while minimised.
class FrmDepart : public QWidget, public page::PorteDessin
{
    Q_OBJECT

public:
    FrmDepart(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Shows the window at the end of the load; a minimised one goes to the tray or the task bar.
    void Ouvre();
    /// Minimises the window, shown or not.
    void Reduit();
    /// Brings it up at its normal size.
    void Restaure();

    const page::Dessin& DessinMontre() const override { return face_; }

protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;

private:
    /// Whether something could bring the window back: the icon beside the clock, or the editor.
    bool PeutSeCacher() const;
    void BrancheControles();
    void BrancheMenus();
    void BranchePlateau();
    void BrancheSignaux();
    void MontreMedecins();
    void SuitReglages();
    void RelitLogo();
    void PeintFace();
    void ProposeEntete(const QList<page::LigneEntete>& stockee);
    void PeintSansMedecin();
    void RevetSansMedecin(bool oui);
    void EditeOrdonnances();
    void Accueille();
    void Repare();
    void TransfereDonnees();
    void OuvreOptions(int onglet);
    void OuvreOptionsDuMedecin(int onglet);
    void OuvreOptionsDuPlateau();
    void RecoitClic(outside::Plateau::Clic clic);

    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
    ControlesDepart controles_;
    MenusDepart menus_;
    page::Dessin face_;
    QImage logo_;
    bool reduite_ = false;
    bool sansMedecin_ = false; ///< the settings were kept without a doctor
};

} // namespace startup
