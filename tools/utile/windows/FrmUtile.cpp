#include "FrmUtile.h"

#include "Rapport.h"
#include "Soin.h"
#include "messages.h"

#include "application/windows/Style.h"
#include "common/Fichiers.h"
#include "outside/Horloge.h"

#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace utile {

namespace style = application::style;

namespace {

enum Colonne { kNom, kTailleAvant, kAvant, kTailleApres, kApres, kNbColonnes };

QTreeWidgetItem* RangeeArbre(QTreeWidget* liste, const Arbre& arbre)
{
    auto* rangee = new QTreeWidgetItem(liste, {LigneArbre(arbre)});
    rangee->setToolTip(kNom, LigneArbre(arbre));
    rangee->setFirstColumnSpanned(true);
    rangee->setExpanded(true);
    rangee->setFlags(Qt::ItemIsEnabled);
    return rangee;
}

QString NomDansLArbre(const BaseTrouvee& base)
{
    return common::CheminAffiche(QDir(base.Arbre).relativeFilePath(base.Chemin));
}

} // namespace

FrmUtile::FrmUtile(QList<Arbre> arbres, outside::Horloge& horloge)
    : arbres_(std::move(arbres)), bases_(BasesDe(arbres_)), horloge_(horloge)
{
    setObjectName(QStringLiteral("FrmUtile"));
    setWindowTitle(messages::TitreFenetre());
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    Dispose();
    Remplit();
    connect(CmdRepare_, &QPushButton::clicked, this, &FrmUtile::Commence);
    connect(CmdQuitter_, &QPushButton::clicked, this, &FrmUtile::reject);
    connect(LstBases_, &QTreeWidget::currentItemChanged, this, &FrmUtile::MontreDetail);
}

FrmUtile::~FrmUtile()
{
    arret_ = true;
    if (travail_) {
        travail_->wait();
    }
}

void FrmUtile::Dispose()
{
    LblEtat_ = style::Legende(QStringLiteral("LblEtat"), messages::Conseil(), this);
    LblEtat_->setWordWrap(true);
    Barre_ = new QProgressBar(this);
    Barre_->setObjectName(QStringLiteral("Barre"));
    Barre_->setAccessibleName(QStringLiteral("Avancement du travail"));
    Barre_->setTextVisible(false);
    Barre_->setRange(0, std::max(1, static_cast<int>(bases_.size())));
    Barre_->setValue(0);
    CmdQuitter_ =
        style::Bouton(QStringLiteral("CmdQuitter"), QStringLiteral("&Quitter"), QStringLiteral("x-lg"), this);
    CmdRepare_ = style::BoutonPrincipal(QStringLiteral("CmdRepare"), QStringLiteral("&Réparer et compacter"),
                                        QStringLiteral("wrench-adjustable"), this);
    auto* pied = new QHBoxLayout;
    pied->setSpacing(style::kDansGroupe);
    pied->addStretch(1);
    pied->addWidget(CmdQuitter_);
    pied->addWidget(CmdRepare_);
    QVBoxLayout* fenetre = style::Fenetre(this);
    fenetre->addWidget(CarteBases(), 3);
    fenetre->addWidget(CarteDetail(), 2);
    fenetre->addWidget(LblEtat_);
    fenetre->addWidget(Barre_);
    fenetre->addLayout(pied);
    style::OrdreTab({LstBases_, TxtDetail_, CmdQuitter_, static_cast<QWidget*>(CmdRepare_)});
    style::Dimensionne(this, 860, 600);
}

QWidget* FrmUtile::CarteBases()
{
    QWidget* carte = style::Carte(this);
    QVBoxLayout* colonne = style::DansCarte(carte);
    LstBases_ = new QTreeWidget(carte);
    LstBases_->setObjectName(QStringLiteral("LstBases"));
    LstBases_->setAccessibleName(QStringLiteral("Bases de données"));
    LstBases_->setUniformRowHeights(true);
    LstBases_->setColumnCount(kNbColonnes);
    LstBases_->setHeaderLabels({QStringLiteral("Base"), QStringLiteral("Taille"), QStringLiteral("Avant"),
                                QStringLiteral("Taille"), QStringLiteral("Après")});
    LstBases_->header()->setStretchLastSection(false);
    LstBases_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    LstBases_->header()->setSectionResizeMode(kNom, QHeaderView::Stretch);
    colonne->addWidget(style::Titre({}, QStringLiteral("&Bases de données"), carte, LstBases_));
    colonne->addWidget(LstBases_, 1);
    return carte;
}

QWidget* FrmUtile::CarteDetail()
{
    QWidget* carte = style::Carte(this);
    QVBoxLayout* colonne = style::DansCarte(carte);
    TxtDetail_ = new QPlainTextEdit(carte);
    TxtDetail_->setObjectName(QStringLiteral("TxtDetail"));
    TxtDetail_->setAccessibleName(QStringLiteral("Détail de la base choisie"));
    TxtDetail_->setReadOnly(true);
    TxtDetail_->setTabChangesFocus(true);
    colonne->addWidget(style::Titre({}, QStringLiteral("&Détail"), carte, TxtDetail_));
    colonne->addWidget(TxtDetail_, 1);
    return carte;
}

void FrmUtile::Remplit()
{
    for (const Arbre& arbre : std::as_const(arbres_)) {
        QTreeWidgetItem* parent = RangeeArbre(LstBases_, arbre);
        for (const BaseTrouvee& base : arbre.Bases) {
            auto* rangee = new QTreeWidgetItem(parent, {NomDansLArbre(base)});
            rangee->setToolTip(kNom, common::CheminAffiche(base.Chemin));
            rangee->setTextAlignment(kTailleAvant, Qt::AlignRight | Qt::AlignVCenter);
            rangee->setTextAlignment(kTailleApres, Qt::AlignRight | Qt::AlignVCenter);
            rangees_.append(rangee);
            bilans_.append(Regarde(base));
            Montre(static_cast<int>(rangees_.size()) - 1, bilans_.last());
        }
    }
    CmdRepare_->setEnabled(!bases_.isEmpty());
    if (arbres_.isEmpty()) {
        LblEtat_->setText(messages::AucuneDonnee());
    }
    if (!rangees_.isEmpty()) {
        LstBases_->setCurrentItem(rangees_.first());
        MontreDetail();
    }
}

void FrmUtile::Montre(int rang, const Bilan& bilan)
{
    bilans_[rang] = bilan;
    QTreeWidgetItem* rangee = rangees_[rang];
    rangee->setText(kTailleAvant, Taille(bilan.TailleAvant));
    rangee->setText(kAvant, bilan.Avant);
    rangee->setText(kTailleApres, bilan.Apres.isEmpty() ? QString() : Taille(bilan.TailleApres));
    rangee->setText(kApres, bilan.Apres);
    const bool attention = bilan.Issue == Issue::Pertes || bilan.Issue == Issue::Laissee;
    const bool signale = attention && !bilan.Apres.isEmpty();
    rangee->setIcon(kApres, signale ? style::Icone(QStringLiteral("exclamation-triangle"), style::Ton::Rouge)
                            : bilan.Apres.isEmpty() ? QIcon()
                                                    : style::Icone(QStringLiteral("check-lg")));
    if (LstBases_->currentItem() == rangee) {
        MontreDetail();
    }
}

void FrmUtile::MontreDetail()
{
    const auto rang = rangees_.indexOf(LstBases_->currentItem());
    TxtDetail_->setPlainText(rang < 0 ? QString() : Detail(bilans_[rang]));
}

void FrmUtile::Commence()
{
    if (Travaille()) {
        return;
    }
    LstBases_->setFocus(); // the button that has it is disabled
    CmdRepare_->setEnabled(false);
    CmdQuitter_->setText(QStringLiteral("&Arrêter"));
    Barre_->setValue(0);
    arret_ = false;
    const auto vers = [this](auto&& suite) { QMetaObject::invokeMethod(this, suite, Qt::QueuedConnection); };
    const auto commence = [this, vers](int rang) {
        vers([this, rang] { Annonce(rang); });
        return !arret_;
    };
    const auto finie = [this, vers](int rang, const Bilan& bilan) {
        vers([this, rang, bilan] { Montre(rang, bilan); });
    };
    travail_.reset(QThread::create([bases = bases_, moment = horloge_.Maintenant(), commence, finie] {
        SoigneTout(bases, moment, commence, finie);
    }));
    connect(travail_.get(), &QThread::finished, this, &FrmUtile::Termine);
    travail_->start();
}

void FrmUtile::Annonce(int rang)
{
    Barre_->setValue(rang);
    if (!arret_) {
        LblEtat_->setText(
            messages::EnCours(NomDansLArbre(bases_[rang]), rang + 1, static_cast<int>(bases_.size())));
        LstBases_->scrollToItem(rangees_[rang]);
    }
}

void FrmUtile::Termine()
{
    travail_->wait();
    travail_.reset();
    CmdRepare_->setEnabled(true);
    CmdQuitter_->setText(QStringLiteral("&Quitter"));
    CmdQuitter_->setEnabled(true);
    Barre_->setValue(Barre_->maximum());
    LblEtat_->setText(
        messages::Fini(std::ranges::count(bilans_, Issue::Saine, &Bilan::Issue), bilans_.size()));
    if (ferme_) {
        QDialog::reject();
    }
}

void FrmUtile::reject()
{
    if (!Travaille()) {
        QDialog::reject();
        return;
    }
    arret_ = true;
    ferme_ = ferme_ || sender() != CmdQuitter_;
    CmdQuitter_->setEnabled(false);
    LblEtat_->setText(messages::ArretApresCelleCi());
}

} // namespace utile
