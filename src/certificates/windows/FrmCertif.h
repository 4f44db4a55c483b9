#pragma once

#include "application/windows/Fenetres.h"
#include "certificates/Macros.h"
#include "certificates/SuiviMiseEnPage.h"
#include "page/windows/PorteDessin.h"
#include "startup/windows/FondPeint.h"

#include <QDialog>
#include <QStringListModel>
#include <array>
#include <optional>

class QBoxLayout;
class QCheckBox;
class QLabel;
class QListView;
class QMenu;
class QPushButton;
class QRadioButton;

namespace certificates {

class ZoneTexte;

/// The word processor of the certificates: templates, macros, shift, and the hand-over to the page. It is
/// modal, hidden and reused: what was typed stays in it.
class FrmCertif : public QDialog, public page::PorteDessin
{
    Q_OBJECT

public:
    FrmCertif(application::Contexte& contexte, application::Fenetres& fenetres);
    ~FrmCertif() override;

    /// Opens modally as the window was left; back when it hides. `ModeApercu` is 1 after `CmdEcrire`, 2 after
    /// `CmdAnn`.
    void Ouvre();
    /// Opens the same way on the certificate of the page: the row of `IndexCertif`, `CertifALD` and the text
    /// of "Tmp.txt".
    void Reprend();

    /// `CmdAnn`, Escape and the close box.
    void reject() override;
    const page::Dessin& DessinMontre() const override { return fond_.Dessin(); }
    /// Remembers the template that was chosen before a press in the list.
    bool eventFilter(QObject* objet, QEvent* evenement) override;

protected:
    bool event(QEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

private:
    void Dispose();
    QWidget* FaitModeles();
    QWidget* FaitTexte();
    QBoxLayout* FaitMacros(QWidget* carte);
    QBoxLayout* FaitLargeurs(QWidget* carte);
    QBoxLayout* FaitOutils(QWidget* carte);
    QBoxLayout* FaitPied();
    void FaitMenu();
    void OrdonneTabulations();
    void Branche();
    void BrancheModeles();
    void BrancheTexte();

    void Charge();
    void Actualise();
    void MontreListe(const QStringList& noms);
    void MontreReglages();
    void MontreMiseEnPage();
    void RemetMiseEnPage(const MiseEnPage& miseEnPage);
    void RemetTexte(const QString& texte);
    int Rang() const;
    QString Modele() const { return modeles_.stringList().value(Rang()); }
    void Selectionne(int rang);

    void ChoixChange();
    void TexteChange();
    void CocheALD(bool coche);
    void CocheIdentite(bool coche);
    void FocusSuivant();
    void InsereMacro(int macro);
    void DecaleADroite();
    void DecaleAGauche();
    void AnnuleDecalage();
    void Nouveau();
    void Enregistre();
    void EnregistreModele();
    void EnregistreSous();
    void Supprime();
    void CopieSelection();
    void ChoisitPolice();
    void Ecrit();
    /// Runs what touches the stored data; a failure is told and the window goes on.
    bool Tente(const std::function<void()>& commande);

    application::Contexte& contexte_;
    startup::FondPeint fond_;
    QStringListModel modeles_;
    int rangAvant_ = -1;
    QListView* LstCertif_ = nullptr;
    ZoneTexte* TxtCert_ = nullptr;
    std::array<QPushButton*, kMacros.size()> Lblmacro_ = {};
    std::array<QRadioButton*, kNbLargeurs> Optsp_ = {};
    QCheckBox* ChkALD_ = nullptr;
    QCheckBox* ChkP_ = nullptr;
    QPushButton* CmdDecG_ = nullptr;
    QPushButton* CmdDecD_ = nullptr;
    QPushButton* CmdAnnule_ = nullptr;
    QPushButton* CmdNouveau_ = nullptr;
    QPushButton* CmdEnr_ = nullptr;
    QPushButton* CmdSupp_ = nullptr;
    QPushButton* CmdEcrire_ = nullptr;
    QPushButton* CmdAnn_ = nullptr;
    QPushButton* CmdPP_ = nullptr;
    QPushButton* CmdPolice_ = nullptr;
    QPushButton* CmdAide_ = nullptr;
    QPushButton* cmdInfo_ = nullptr;
    QPushButton* Image1_ = nullptr;
    QLabel* LblF_ = nullptr;
    QMenu* menu_ = nullptr;
    std::optional<SuiviMiseEnPage> suivi_;
};

} // namespace certificates
