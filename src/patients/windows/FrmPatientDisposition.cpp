#include "application/windows/Style.h"
#include "patients/windows/FrmPatient.h"
#include "patients/windows/ListeChoix.h"
#include "patients/windows/ZoneRecherche.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace patients {

namespace style = application::style;

namespace {

/// Room for that many lines, so that nothing below moves from one patient to the next.
void ReserveLignes(QLabel& etiquette, int lignes)
{
    etiquette.ensurePolished();
    etiquette.setWordWrap(true);
    etiquette.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    etiquette.setMinimumHeight(lignes * etiquette.fontMetrics().lineSpacing());
}

} // namespace

void FrmPatient::Dispose()
{
    auto* fenetre = style::Fenetre(this);
    auto* haut = new QHBoxLayout;
    haut->setSpacing(style::kEntreGroupes);
    haut->addWidget(FaitListe(), 3);
    auto* droite = new QVBoxLayout;
    droite->setSpacing(style::kEntreGroupes);
    droite->addWidget(FaitChoix(), 1);
    droite->addWidget(FaitAutres());
    haut->addLayout(droite, 2);
    fenetre->addLayout(haut, 1);
    fenetre->addLayout(FaitPied());
    OrdonneTabulations();
    style::Dimensionne(this, 860, 620);
}

QWidget* FrmPatient::FaitListe()
{
    auto* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    lstPatient_ = new ListeChoix(carte);
    lstPatient_->setObjectName(QStringLiteral("LstPatient"));
    lstPatient_->setUniformItemSizes(true);
    lstPatient_->setModel(&liste_);

    txtCherche_ = new ZoneRecherche(*lstPatient_, carte);
    txtCherche_->setObjectName(QStringLiteral("TxtCherche"));
    txtCherche_->addAction(style::Icone(QStringLiteral("search")), QLineEdit::LeadingPosition);
    txtCherche_->setToolTip(QStringLiteral("Premières lettres du nom ; flèches pour parcourir la liste"));

    colonne->addWidget(style::Titre({}, QStringLiteral("&Rechercher"), carte, txtCherche_));
    colonne->addWidget(txtCherche_);
    colonne->addSpacing(style::kDansGroupe);
    colonne->addWidget(style::Titre({}, QStringLiteral("&Liste des patients"), carte, lstPatient_));
    colonne->addWidget(lstPatient_, 1);
    return carte;
}

QWidget* FrmPatient::FaitChoix()
{
    auto* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    lblTitre_ = style::Titre(QStringLiteral("LblTitre"), {}, carte);
    lblPatient_ = style::Legende(QStringLiteral("LblPatient"), {}, carte);
    ReserveLignes(*lblTitre_, 3);
    ReserveLignes(*lblPatient_, 2);
    cmdModifier_ = style::Bouton(QStringLiteral("CmdModifier"), QStringLiteral("&Modifier"),
                                 QStringLiteral("pencil"), carte);
    cmdSupprime_ = style::BoutonDestructeur(QStringLiteral("CmdSupprime"), QStringLiteral("&Supprimer"),
                                            QStringLiteral("trash3"), carte);
    colonne->addWidget(style::Legende({}, QStringLiteral("Patient sélectionné"), carte));
    colonne->addWidget(lblTitre_);
    colonne->addWidget(lblPatient_);
    colonne->addStretch(1);
    colonne->addWidget(cmdModifier_);
    colonne->addWidget(cmdSupprime_);
    return carte;
}

QWidget* FrmPatient::FaitAutres()
{
    auto* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    cmdNouveauPatient_ =
        style::Bouton(QStringLiteral("CmdNouveauPatient"), QStringLiteral("&Nouveau patient"),
                      QStringLiteral("person-plus"), carte);
    cmdPassage_ = style::Bouton(QStringLiteral("CmdPassage"), QStringLiteral("Patient de &passage"),
                                QStringLiteral("person"), carte);
    colonne->addWidget(style::Legende({}, QStringLiteral("Patient absent de la liste"), carte));
    colonne->addWidget(cmdNouveauPatient_);
    colonne->addWidget(cmdPassage_);
    return carte;
}

QBoxLayout* FrmPatient::FaitPied()
{
    auto* pied = new QHBoxLayout;
    pied->setSpacing(style::kDansGroupe);
    cmdAide_ = style::Bouton(QStringLiteral("CmdAide"), QStringLiteral("A&ide"),
                             QStringLiteral("question-circle"), this);
    cmdAnnule_ =
        style::Bouton(QStringLiteral("CmdAnnule"), QStringLiteral("&Annuler"), QStringLiteral("x-lg"), this);
    cmdOK_ = style::BoutonPrincipal(QStringLiteral("CmdOK"), QStringLiteral("OK"), QStringLiteral("check-lg"),
                                    this);
    style::Nomme(cmdOK_, QStringLiteral("Confirmer le patient sélectionné"), QStringLiteral("Entrée"));
    style::Nomme(cmdAnnule_, QStringLiteral("Fermer sans choisir de patient"), QStringLiteral("Échap"));
    pied->addWidget(cmdAide_);
    pied->addStretch(1);
    pied->addWidget(cmdAnnule_);
    pied->addWidget(cmdOK_);
    return pied;
}

void FrmPatient::OrdonneTabulations()
{
    const QList<QWidget*> ordre = {txtCherche_, lstPatient_, cmdModifier_, cmdSupprime_, cmdNouveauPatient_,
                                   cmdPassage_, cmdAide_,    cmdAnnule_,   cmdOK_};
    style::OrdreTab(ordre);
}

} // namespace patients
