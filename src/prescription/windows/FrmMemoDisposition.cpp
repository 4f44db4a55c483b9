#include "application/windows/Style.h"
#include "prescription/windows/ChampRecherche.h"
#include "prescription/windows/FrmMemo.h"
#include "prescription/windows/ListeTitres.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

// What FrmMemo is made of.
namespace prescription {

namespace style = application::style;

void FrmMemo::Dispose()
{
    TxtRecherche_ = new ChampRecherche(this);
    TxtRecherche_->setPlaceholderText(QStringLiteral("Une partie du titre"));
    auto* recherche = new QHBoxLayout;
    recherche->setSpacing(style::kEntreGroupes);
    recherche->addWidget(style::Titre({}, QStringLiteral("&Rechercher"), this, TxtRecherche_));
    recherche->addWidget(TxtRecherche_, 1);
    auto* listes = new QHBoxLayout;
    listes->setSpacing(style::kEntreGroupes);
    listes->addWidget(FaitListe(0, QStringLiteral("HLBPanel2"), QStringLiteral("Ordonnances génériques"),
                                QStringLiteral("Aucune ordonnance générique")),
                      1);
    listes->addWidget(FaitListe(1, QStringLiteral("HLB"), QStringLiteral("Ordonnances spécifiques"),
                                QStringLiteral("Aucune ordonnance pour ce patient")),
                      1);
    auto* fenetre = style::Fenetre(this);
    fenetre->addLayout(recherche);
    fenetre->addLayout(listes, 1);
    fenetre->addLayout(FaitPied());
    style::OrdreTab(
        {TxtRecherche_, LstMemo_[0], LstMemo_[1], lblAS_, CmdQuitter_, static_cast<QWidget*>(CmdEditer_)});
    style::Dimensionne(this, 900, 620);
}

QWidget* FrmMemo::FaitListe(int rang, const QString& nomTitre, const QString& titre, const QString& vide)
{
    QWidget* carte = style::Carte(this);
    QVBoxLayout* colonne = style::DansCarte(carte);
    auto* liste = new ListeTitres(QStringLiteral("LstMemo(%1)").arg(rang), vide, carte);
    liste->setModel(&memos_[static_cast<size_t>(rang)]);
    liste->setAccessibleName(titre);
    style::RaccourciVers(liste, rang == 0 ? QStringLiteral("Alt+1") : QStringLiteral("Alt+2"));
    QLabel* panneau = style::Titre(nomTitre, titre, carte);
    panneau->setWordWrap(true);
    colonne->addWidget(panneau);
    colonne->addWidget(liste, 1);
    LstMemo_[static_cast<size_t>(rang)] = liste;
    HLB_ = panneau; // of the last list, that of the patient
    return carte;
}

QLayout* FrmMemo::FaitPied()
{
    lblAS_ =
        style::Lien(QStringLiteral("lblAS"), QStringLiteral("Comment &supprimer une ordonnance ?"), this);
    CmdQuitter_ =
        style::Bouton(QStringLiteral("CmdQuitter"), QStringLiteral("&Quitter"), QStringLiteral("x-lg"), this);
    CmdEditer_ = style::BoutonPrincipal(QStringLiteral("CmdEditer"), QStringLiteral("É&diter"),
                                        QStringLiteral("check-lg"), this);
    style::Nomme(CmdEditer_, QStringLiteral("Ajouter ses lignes à l'ordonnance en cours"),
                 QStringLiteral("Entrée"));
    style::Nomme(CmdQuitter_, QStringLiteral("Fermer sans rien charger"), QStringLiteral("Échap"));
    auto* pied = new QHBoxLayout;
    pied->setSpacing(style::kDansGroupe);
    pied->addWidget(lblAS_);
    pied->addStretch(1);
    pied->addWidget(CmdQuitter_);
    pied->addWidget(CmdEditer_);
    return pied;
}

} // namespace prescription
