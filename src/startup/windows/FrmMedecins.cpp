#include "startup/windows/FrmMedecins.h"

#include "application/Signaux.h"
#include "application/windows/Style.h"
#include "startup/GestionMedecins.h"
#include "startup/Medecins.h"
#include "startup/messages.h"

#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QWhatsThis>

namespace startup {

namespace style = application::style;

FrmMedecins::FrmMedecins(application::Contexte& contexte, application::Fenetres&)
    : contexte_(contexte), fond_(page::Rvb(100, 100, 100), page::Rvb(222, 235, 250), 8)
{
    setObjectName(QStringLiteral("FrmMedecins"));
    setWindowTitle(QStringLiteral("Médecins utilisateurs"));
    setWhatsThis(messages::AideDesMedecins());
    auto* carte = style::Carte(this);
    auto* colonnes = new QHBoxLayout(carte);
    colonnes->setSpacing(style::kEntreGroupes);
    colonnes->addWidget(CarteDeLaListe(), 1);
    colonnes->addLayout(ColonneDesBoutons());
    style::Fenetre(this)->addWidget(carte);
    style::Dimensionne(this, 720, 440);
    MontreMedecins();
    Branche();
}

void FrmMedecins::paintEvent(QPaintEvent*)
{
    QPainter peintre(this);
    fond_.Montre(peintre);
}

void FrmMedecins::resizeEvent(QResizeEvent* evenement)
{
    QDialog::resizeEvent(evenement);
    fond_.Ajuste(size());
}

QWidget* FrmMedecins::CarteDeLaListe()
{
    auto* zone = new QWidget(this);
    LstMed_ = new QListWidget(zone);
    LstMed_->setObjectName(QStringLiteral("LstMed"));
    LstMed_->setFont(style::PoliceFixe());
    LstMed_->setUniformItemSizes(true);
    LstMed_->setTextElideMode(Qt::ElideRight);
    LblMed_ = new QLabel(zone);
    LblMed_->setObjectName(QStringLiteral("LblMed"));
    LblMed_->setAccessibleName(QStringLiteral("Médecin en cours"));
    auto* disposition = new QVBoxLayout(zone);
    disposition->setContentsMargins(0, 0, 0, 0);
    disposition->addWidget(style::Titre({}, QStringLiteral("&Médecins utilisateurs"), zone, LstMed_));
    disposition->addWidget(LstMed_, 1);
    disposition->addWidget(style::Legende({}, QStringLiteral("Médecin en cours"), zone));
    disposition->addWidget(LblMed_);
    return zone;
}

QLayout* FrmMedecins::ColonneDesBoutons()
{
    auto* quitte =
        style::BoutonPrincipal(QStringLiteral("CmdQuitter"), QStringLiteral("Sélectionner / &Quitter"),
                               QStringLiteral("check-lg"), this);
    auto* nouveau = style::Bouton(QStringLiteral("CmdNouveau"), QStringLiteral("&Nouveau"),
                                  QStringLiteral("person-plus"), this);
    auto* defaut = style::Bouton(QStringLiteral("CmdDefaut"), QStringLiteral("&Par défaut à l'ouverture"),
                                 QStringLiteral("star"), this);
    auto* aide = style::Bouton(QStringLiteral("CmdAide"), QStringLiteral("&Aide"),
                               QStringLiteral("question-circle"), this);
    auto* supprime =
        style::BoutonDestructeur(QStringLiteral("CmdSupprime"), QStringLiteral("&Supprimer de la liste"),
                                 QStringLiteral("trash3"), this);
    quitte->setToolTip(QStringLiteral("Travailler avec le médecin choisi (Entrée)"));
    auto* disposition = new QVBoxLayout;
    for (QPushButton* bouton : {nouveau, defaut, supprime}) {
        disposition->addWidget(bouton);
    }
    disposition->addStretch();
    disposition->addWidget(aide);
    disposition->addSpacing(style::kDansGroupe);
    disposition->addWidget(quitte);
    connect(nouveau, &QPushButton::clicked, this, [this] { InscritMedecin(contexte_); });
    connect(defaut, &QPushButton::clicked, this, [this] { PoseMedecinParDefaut(contexte_); });
    connect(supprime, &QPushButton::clicked, this, [this] { SupprimeMedecin(contexte_); });
    connect(aide, &QPushButton::clicked, this, &FrmMedecins::MontreAide);
    connect(quitte, &QPushButton::clicked, this, &FrmMedecins::Quitte);
    style::OrdreTab({LstMed_, nouveau, defaut, supprime, aide, quitte});
    return disposition;
}

void FrmMedecins::Branche()
{
    connect(LstMed_, &QListWidget::itemSelectionChanged, this, &FrmMedecins::ChoixChange);
    LstMed_->viewport()->installEventFilter(this);
    connect(LstMed_, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* ligne) { ReprendChoix(LstMed_->row(ligne)); });
    connect(LstMed_, &QListWidget::itemDoubleClicked, this, &FrmMedecins::Quitte);
    connect(&contexte_.Signaux, &application::Signaux::MedecinsChanges, this, &FrmMedecins::MontreMedecins);
}

bool FrmMedecins::eventFilter(QObject* objet, QEvent* evenement)
{
    if (objet == LstMed_->viewport() && evenement->type() == QEvent::MouseButtonPress) {
        rangAvant_ = Rang();
    }
    return QDialog::eventFilter(objet, evenement);
}

int FrmMedecins::Rang() const
{
    const QModelIndexList choisis = LstMed_->selectionModel()->selectedRows();
    return choisis.isEmpty() ? -1 : choisis.front().row();
}

void FrmMedecins::ChoixChange()
{
    const int rang = Rang();
    if (rang < 0) {
        MontreMedecins(); // no gesture takes the doctor away
        return;
    }
    ChangeMedecin(contexte_, rang);
}

/// A click on the doctor who is chosen already reads his files again.
void FrmMedecins::ReprendChoix(int rang)
{
    if (rang == rangAvant_) {
        ChangeMedecin(contexte_, rang);
    }
}

void FrmMedecins::MontreMedecins()
{
    const QSignalBlocker sansChange(LstMed_);
    const Medecins& medecins = contexte_.Medecins;
    if (liste_ != medecins.Liste) { // a list made anew under the mouse would lose its double click
        liste_ = medecins.Liste;
        RemplitListe();
    }
    LstMed_->setCurrentRow(medecins.Selection);
    LblMed_->setText(medecins.Selection < 0 ? QString() : medecins.Liste.value(medecins.Selection).Nom);
}

void FrmMedecins::RemplitListe()
{
    LstMed_->clear();
    for (const Medecin& medecin : std::as_const(liste_)) {
        auto* ligne = new QListWidgetItem(medecin.Nom, LstMed_);
        ligne->setData(Qt::UserRole, medecin.Numero);
        ligne->setToolTip(medecin.Nom);
    }
}

void FrmMedecins::Quitte()
{
    if (QuitteMedecins(contexte_)) {
        accept();
    }
}

void FrmMedecins::MontreAide()
{
    QWhatsThis::showText(mapToGlobal(rect().center()), whatsThis(), this);
}

} // namespace startup
