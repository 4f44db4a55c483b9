#include "certificates/Commandes.h"
#include "certificates/Modeles.h"
#include "certificates/messages.h"
#include "certificates/windows/FrmCertif.h"
#include "certificates/windows/ZoneTexte.h"
#include "outside/Tente.h"
#include "startup/Chemins.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

// What the commands of FrmCertif do.
namespace certificates {

bool FrmCertif::Tente(const std::function<void()>& commande)
{
    return outside::Tente(contexte_.Dehors.Boites, commande);
}

void FrmCertif::Branche()
{
    BrancheModeles();
    BrancheTexte();
    outside::Boites& boites = contexte_.Dehors.Boites;
    connect(CmdAide_, &QPushButton::clicked, this, [&boites] { boites.Information(messages::Aide()); });
    connect(cmdInfo_, &QPushButton::clicked, this,
            [&boites] { boites.Information(messages::InsertionDesMacros()); });
    connect(Image1_, &QPushButton::clicked, this, [&boites] { boites.Information(messages::Formatage()); });
    connect(CmdEcrire_, &QPushButton::clicked, this, &FrmCertif::Ecrit);
    connect(CmdAnn_, &QPushButton::clicked, this, &FrmCertif::reject);
}

void FrmCertif::BrancheModeles()
{
    LstCertif_->viewport()->installEventFilter(this);
    connect(LstCertif_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FrmCertif::ChoixChange);
    connect(LstCertif_, &QListView::clicked, this, [this](const QModelIndex& index) {
        if (index.row() == rangAvant_) {
            ChoixChange(); // a click on the template that is chosen already reads it again
        }
    });
    connect(LstCertif_, &QListView::doubleClicked, CmdEcrire_, &QPushButton::click);
    connect(CmdNouveau_, &QPushButton::clicked, this, &FrmCertif::Nouveau);
    connect(CmdEnr_, &QPushButton::clicked, this, &FrmCertif::Enregistre);
    connect(CmdSupp_, &QPushButton::clicked, this, &FrmCertif::Supprime);
    connect(menu_->actions().constFirst(), &QAction::triggered, this, &FrmCertif::EnregistreModele);
    connect(menu_->actions().constLast(), &QAction::triggered, this, &FrmCertif::EnregistreSous);
    connect(ChkALD_, &QCheckBox::toggled, this, &FrmCertif::CocheALD);
    connect(ChkP_, &QCheckBox::clicked, this, &FrmCertif::CocheIdentite);
}

void FrmCertif::BrancheTexte()
{
    connect(TxtCert_, &QPlainTextEdit::textChanged, this, &FrmCertif::TexteChange);
    for (size_t macro = 0; macro < Lblmacro_.size(); ++macro) {
        connect(Lblmacro_[macro], &QPushButton::clicked, this,
                [this, macro] { InsereMacro(static_cast<int>(macro)); });
    }
    connect(CmdDecG_, &QPushButton::clicked, this, &FrmCertif::DecaleAGauche);
    connect(CmdDecD_, &QPushButton::clicked, this, &FrmCertif::DecaleADroite);
    connect(CmdAnnule_, &QPushButton::clicked, this, &FrmCertif::AnnuleDecalage);
    connect(CmdPP_, &QPushButton::clicked, this, &FrmCertif::CopieSelection);
    connect(CmdPolice_, &QPushButton::clicked, this, &FrmCertif::ChoisitPolice);
}

void FrmCertif::ChoixChange()
{
    if (Rang() < 0) {
        return;
    }
    QString texte;
    if (!Tente([&] { texte = LitModele(contexte_.Chemins.CheminTravail, Modele(), contexte_.Certificat); })) {
        Selectionne(-1); // the text in the box is not this template's
        return;
    }
    RemetTexte(texte);
    MontreMiseEnPage();
}

void FrmCertif::TexteChange()
{
    CmdEnr_->setEnabled(true);
    CmdEcrire_->setEnabled(!TxtCert_->document()->isEmpty());
}

void FrmCertif::CocheALD(bool coche)
{
    if (contexte_.Certificat.ChargeCertif == 1) {
        return;
    }
    RemetTexte(certificates::CocheALD(contexte_.Certificat, coche));
    CmdDecD_->setEnabled(!coche);
    CmdDecG_->setEnabled(!coche);
    FocusSuivant();
}

void FrmCertif::CocheIdentite(bool coche)
{
    contexte_.Certificat.IdentiteCertif = coche ? 1 : 0;
    FocusSuivant();
}

void FrmCertif::FocusSuivant()
{
    (CmdEcrire_->isEnabled() ? CmdEcrire_ : CmdNouveau_)->setFocus();
}

void FrmCertif::InsereMacro(int macro)
{
    const auto choisie = std::ranges::find_if(Optsp_, &QRadioButton::isChecked);
    const int option =
        choisie == Optsp_.end() ? kLargeurParDefaut : static_cast<int>(choisie - Optsp_.begin());
    const QString texte = TexteMacro(macro, LargeurNBsp(option));
    QGuiApplication::clipboard()->setText(texte);
    TxtCert_->setFocus();
    TxtCert_->insertPlainText(texte);
    TxtCert_->ensureCursorVisible();
}

void FrmCertif::DecaleADroite()
{
    Tente([&] {
        RemetTexte(DecaleTexteADroite(contexte_, TxtCert_->Texte()));
        CmdAnnule_->setEnabled(true);
        CmdDecG_->setEnabled(true);
    });
}

void FrmCertif::DecaleAGauche()
{
    Tente([&] {
        const auto decale = DecaleTexteAGauche(contexte_, TxtCert_->Texte());
        CmdAnnule_->setEnabled(true);
        if (decale) {
            RemetTexte(*decale);
        } else {
            CmdDecG_->setEnabled(false);
            TxtCert_->setFocus();
        }
    });
}

void FrmCertif::AnnuleDecalage()
{
    CmdAnnule_->setEnabled(false);
    CmdDecG_->setEnabled(true);
    TxtCert_->setFocus();
    ChoixChange();
}

void FrmCertif::Nouveau()
{
    contexte_.Certificat.DecalageCertif = 0;
    RemetTexte({});
    TxtCert_->setFocus();
    CmdEnr_->setEnabled(true);
    CmdEcrire_->setEnabled(false);
    contexte_.Dehors.Boites.Information(messages::EcrivezLeTexte());
}

void FrmCertif::Enregistre()
{
    if (Rang() < 0) {
        EnregistreSous();
    } else {
        menu_->popup(CmdEnr_->mapToGlobal(QPoint(0, CmdEnr_->height())));
    }
}

void FrmCertif::EnregistreModele()
{
    Tente([&] {
        EcritModele(contexte_.Chemins.CheminTravail, Modele(), TxtCert_->Texte(), contexte_.Certificat);
        CmdEnr_->setEnabled(false);
        TxtCert_->setFocus();
    });
}

void FrmCertif::EnregistreSous()
{
    Tente([&] {
        if (certificates::EnregistreSous(contexte_, TxtCert_->Texte())) {
            Charge();
        }
    });
}

void FrmCertif::Supprime()
{
    const QString nom = Modele();
    bool supprime = false;
    Tente([&] { supprime = SupprimeModele(contexte_, nom); });
    if (supprime || (!nom.isEmpty() && !ModeleExiste(contexte_.Chemins.CheminTravail, nom))) {
        MontreListe(ListeModeles(contexte_.Chemins.CheminTravail));
        Selectionne(-1);
        RemetTexte({});
    }
}

void FrmCertif::CopieSelection()
{
    const QString selection = TxtCert_->Selection();
    if (selection.isEmpty()) {
        contexte_.Dehors.Boites.Exclamation(messages::PasDeSelection());
        return;
    }
    QGuiApplication::clipboard()->setText(selection);
    contexte_.Dehors.Boites.Information(messages::SelectionCopiee());
}

void FrmCertif::ChoisitPolice()
{
    Tente([&] {
        if (certificates::ChoisitPolice(contexte_)) {
            MontreReglages();
        }
    });
}

void FrmCertif::Ecrit()
{
    Tente([&] {
        if (EcritSurLaPage(contexte_, TxtCert_->Texte(), Rang())) {
            suivi_->Note();
            accept();
        }
    });
}

} // namespace certificates
