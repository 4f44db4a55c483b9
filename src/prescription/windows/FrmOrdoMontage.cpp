#include "application/windows/Style.h"
#include "prescription/Apercu.h"
#include "prescription/Commandes.h"
#include "prescription/Editeur.h"
#include "prescription/Envoi.h"
#include "prescription/Memoire.h"
#include "prescription/Ordonnance.h"
#include "prescription/messages.h"
#include "prescription/windows/BarreCommandes.h"
#include "prescription/windows/FrmOrdo.h"
#include "prescription/windows/VueFeuille.h"
#include "settings/Reglages.h"
#include "startup/Documents.h"
#include "startup/Medecins.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

// What FrmOrdo is made of, and how it follows the state.
namespace prescription {

namespace style = application::style;

QList<Commande> FrmOrdo::CommandesDuDocument()
{
    return {
        {QStringLiteral("CmdNouvelle"), QStringLiteral("&Nouvelle ordonnance"), QStringLiteral("&Nouvelle"),
         QStringLiteral("Commencer une ordonnance et choisir le patient"),
         QStringLiteral("file-earmark-plus"), Groupe::Document, [this] { Nouvelle(); },
         QKeySequence(QKeySequence::New)},
        {QStringLiteral("CmdPatient"), QStringLiteral("&Patient"), QStringLiteral("&Patient"),
         QStringLiteral("Changer de patient"), QStringLiteral("person"), Groupe::Document,
         [this] { Patient(); }},
        {QStringLiteral("CmdPharma"), QStringLiteral("P&harmacie"), QStringLiteral("P&harmacie"),
         QStringLiteral("Choisir les médicaments"), QStringLiteral("capsule"), Groupe::Document,
         [this] { Pharma(); }},
        {QStringLiteral("CmdDate"), QStringLiteral("&Date"), QStringLiteral("&Date"),
         QStringLiteral("Changer la date de l'ordonnance"), QStringLiteral("calendar3"), Groupe::Document,
         [this] { Date(); }},
        {QStringLiteral("CmdCertif"), QStringLiteral("&Certificat"), QStringLiteral("&Certificat"),
         QStringLiteral("Certificats"), QStringLiteral("file-earmark-text"), Groupe::Document,
         [this] { Certificat(); }},
        {QStringLiteral("CmdImprime"), QStringLiteral("&Imprimer"), QStringLiteral("&Imprimer"),
         QStringLiteral("Imprimer l'ordonnance"), QStringLiteral("printer"), Groupe::Papier,
         [this] { Imprime(); }, QKeySequence(QKeySequence::Print)},
    };
}

QList<Commande> FrmOrdo::CommandesDuProgramme()
{
    return {
        {QStringLiteral("CmdEnr"), QStringLiteral("Mém&oriser"), QStringLiteral("Mém&oriser"),
         QStringLiteral("Mémoriser l'ordonnance"), QStringLiteral("bookmark-plus"), Groupe::Memoire,
         [this] { MemoriseOrdonnance(contexte_); }},
        {QStringLiteral("CmdSupp"), QStringLiteral("&Supprimer"), QStringLiteral("&Supprimer"),
         QStringLiteral("Supprimer l'ordonnance mémorisée"), QStringLiteral("trash3"), Groupe::Memoire,
         [this] { Supprime(); }},
        {QStringLiteral("CmdAccueil"), QStringLiteral("&Accueil"), QStringLiteral("&Accueil"),
         QStringLiteral("Revenir à la fenêtre d'accueil"), QStringLiteral("house"), Groupe::Programme,
         [this] { Accueil(); }},
        {QStringLiteral("CmdAide"), QStringLiteral("Aid&e"), QStringLiteral("Aid&e"), QStringLiteral("Aide"),
         QStringLiteral("question-circle"), Groupe::Programme, [this] { MontreAide(); },
         QKeySequence(Qt::Key_F1)},
        {QStringLiteral("CmdFermer"), QStringLiteral("&Fermer"), QStringLiteral("&Fermer"),
         QStringLiteral("Quitter Scriptelle"), QStringLiteral("power"), Groupe::Programme,
         [this] { close(); }},
    };
}

ActionsMenus FrmOrdo::ActionsDesMenus()
{
    return {.Options = [this] { OuvreOptions(); },
            .HauteurN = [this] { RetablitHauteurNormale(contexte_); },
            .HauteurP = [this] { FixeHauteurPersonnelle(contexte_); },
            .AideAncienne = [this] { startup::OuvreAide(contexte_); },
            .AideNouvelle = [this] { startup::OuvreNouvelleAide(contexte_); },
            .APropos = [this] { APropos(); },
            .Minimise = [this] { showMinimized(); },
            .Quitte = [this] { close(); }};
}

void FrmOrdo::Dispose()
{
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(style::kEntreGroupes);
    auto* colonne = new QVBoxLayout;
    colonne->setSpacing(style::kDansGroupe);
    colonne->addWidget(PctMenu2_);
    colonne->addWidget(CreeEntete());
    colonne->addWidget(vue_, 1);
    rangee->addWidget(PctMenu1_);
    rangee->addLayout(colonne, 1);
    style::Fenetre(this)->addLayout(rangee);
    style::Dimensionne(this, 1180, 900);
}

QWidget* FrmOrdo::CreeEntete()
{
    auto* entete = new QWidget(this);
    PctMemo_ = new QWidget(entete);
    PctMemo_->setObjectName(QStringLiteral("PctMemo"));
    ImgMemo_ = new QLabel(PctMemo_);
    ImgMemo_->setObjectName(QStringLiteral("ImgMemo"));
    ImgMemo_->setPixmap(
        style::Icone(QStringLiteral("bookmark")).pixmap(style::kTailleIcone, style::kTailleIcone));
    style::Nomme(ImgMemo_, QStringLiteral("Ordonnance mémorisée"));
    titreMemo_ = style::Titre(QStringLiteral("LblMemo"), QString(), PctMemo_);
    ChkCiv_ = new QCheckBox(QStringLiteral("Ci&vilité"), entete);
    ChkCiv_->setObjectName(QStringLiteral("ChkCiv"));
    style::Nomme(ChkCiv_, QStringLiteral("Imprimer le nom avec sa civilité"));
    CboMed_ = new QComboBox(entete);
    CboMed_->setObjectName(QStringLiteral("CboMed"));
    CboMed_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    CboMed_->setPlaceholderText(QStringLiteral("Aucun médecin"));

    auto* memo = new QHBoxLayout(PctMemo_);
    memo->setContentsMargins({});
    memo->addWidget(ImgMemo_);
    memo->addWidget(titreMemo_);
    auto* rangee = new QHBoxLayout(entete);
    rangee->setContentsMargins({});
    rangee->setSpacing(style::kEntreGroupes);
    rangee->addWidget(PctMemo_);
    deborde_ = style::Avertissement(QStringLiteral("LblDeborde"), {}, entete);
    rangee->addWidget(deborde_);
    imprimante_ = style::Avertissement(QStringLiteral("LblImprimante"), {}, entete);
    rangee->addWidget(imprimante_);
    rangee->addStretch();
    rangee->addWidget(ChkCiv_);
    rangee->addWidget(
        style::Legende(QStringLiteral("LblCboMed"), QStringLiteral("&Médecin"), entete, CboMed_));
    rangee->addWidget(CboMed_);
    return entete;
}

void FrmOrdo::Raccourcis(const QList<Commande>& commandes)
{
    for (const Commande& commande : commandes) {
        if (!commande.Touche.isEmpty()) {
            connect(new QShortcut(commande.Touche, this), &QShortcut::activated, this,
                    [this, nom = commande.Nom] { Execute(nom); });
        }
    }
}

void FrmOrdo::SuitMedecins()
{
    const QSignalBlocker silence(CboMed_);
    CboMed_->clear();
    for (const startup::Medecin& medecin : std::as_const(contexte_.Medecins.Liste)) {
        CboMed_->addItem(medecin.Nom, medecin.Numero);
    }
    CboMed_->setCurrentIndex(contexte_.Medecins.Selection);
}

void FrmOrdo::SuitReglages()
{
    const settings::Options& options = contexte_.Reglages.Options;
    PctMenu1_->setVisible(options.BarreMenu == 0);
    PctMenu2_->setVisible(options.BarreMenu != 0);
    vue_->MontreRegle(options.AfficheRegle == 1);
    menus_.PermetHauteurN(options.SautPersonnalise == 1);
    SuitImprimante();
}

void FrmOrdo::SuitImprimante()
{
    const QString avis = AvisImprimante(contexte_);
    imprimante_->setText(avis);
    imprimante_->setVisible(!avis.isEmpty());
}

void FrmOrdo::SuitApercu()
{
    const double bas = BasDeLaFeuille(contexte_);
    vue_->Montre(contexte_.Apercu.PctOrdo, bas);
    deborde_->setText(messages::Deborde(contexte_.Apercu.ModeApercu == 1));
    deborde_->setVisible(bas > 0);
}

void FrmOrdo::SuitOrdonnance()
{
    const Ordonnance& ordonnance = contexte_.Ordonnance;
    const bool memorisee = ordonnance.OrdoMemorisee == 1 && contexte_.Apercu.ModeApercu == 0;
    ImgMemo_->setVisible(memorisee);
    titreMemo_->setText(memorisee ? ordonnance.TitreMemo : QString());
    ChkCiv_->setChecked(ordonnance.ChkCiv == 1);
    ChkCiv_->setEnabled(contexte_.Apercu.ModeApercu != 1);
}

} // namespace prescription
