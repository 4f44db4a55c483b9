#pragma once

#include "application/windows/Fenetres.h"
#include "settings/windows/ControlesEntete.h"

#include <QDialog>
#include <QImage>
#include <optional>

namespace settings {

struct Entete;

/// The header designer: the 24 rows of the letterhead, its colour, margins and block order. Nothing is stored
/// before `CmdEnregistrer`; the only way out is `CmdQuitter`.
class FrmEntete : public QDialog
{
    Q_OBJECT

public:
    FrmEntete(application::Contexte& contexte, application::Fenetres& fenetres);
    ~FrmEntete() override;

protected:
    void changeEvent(QEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;
    void reject() override;

private:
    void Branche();
    void Charge();
    void Montre(const Entete& entete);
    Entete Lit() const;
    void PeintEnregistree();
    void SuitModifications();
    void MontreRang();
    void ChangeOrdre(int ordre);
    void ChoisitPolice();
    void ChoisitCouleur();
    void Enregistre();
    void Revient();
    void Imprime();
    void Quitte();

    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
    ControlesEntete controles_;
    std::unique_ptr<Entete> gardee_; ///< as it is stored; null when it could not be read
    std::optional<int> ordreGarde_;  ///< the block order of "Options.cfg"
    QImage logo_;
    bool montre_ = false; ///< the controls are being filled
};

} // namespace settings
