#include "settings/windows/OngletPharmacies.h"

#include "application/windows/Style.h"
#include "drugbank/Banque.h"
#include "settings/messages.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

namespace settings {

namespace style = application::style;

OngletPharmacies::OngletPharmacies(application::Contexte& contexte, QWidget* parent)
    : Onglet(parent), contexte_(contexte)
{
    Dispose();
    Charge();
    for (int rang = 0; rang < kNbPharmacies; ++rang) {
        connect(OptB_[rang], &QRadioButton::clicked, this, [this, rang] { Choisit(rang); });
    }
}

void OngletPharmacies::Dispose()
{
    auto* carte = style::Carte(this);
    auto* groupe = new QVBoxLayout(carte);
    groupe->setSpacing(style::kDansGroupe);
    groupe->addWidget(style::Titre(QStringLiteral("LblPharmacie"),
                                   QStringLiteral("Choisir la base de données de la pharmacie"), carte));
    const QStringList legendes = {QStringLiteral("&Scriptelle"), QStringLiteral("&Vidal TVS"),
                                  QStringLiteral("Vidal &Dentaire"), QStringLiteral("&Base publique")};
    for (int rang = 0; rang < kNbPharmacies; ++rang) {
        OptB_[rang] = new QRadioButton(legendes.at(rang), carte);
        OptB_[rang]->setObjectName(QStringLiteral("OptB(%1)").arg(rang));
        groupe->addWidget(OptB_[rang], 0, Qt::AlignLeft);
    }
    LblBase_ = style::Legende(QStringLiteral("LblBase"), QString(), carte);
    LblBase_->setWordWrap(true);
    groupe->addWidget(LblBase_);
    auto* relief = style::Carte(this);
    ChKMedU_ = new QCheckBox(
        QStringLiteral("&Mettre en \"relief\" les médicaments utilisés (pour une base Vidal)"), relief);
    ChKMedU_->setObjectName(QStringLiteral("ChKMedU"));
    (new QVBoxLayout(relief))->addWidget(ChKMedU_, 0, Qt::AlignLeft);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins({});
    page->setSpacing(style::kEntreGroupes);
    page->addWidget(carte);
    page->addWidget(relief);
    page->addStretch();
}

void OngletPharmacies::Charge()
{
    ChKMedU_->setChecked(contexte_.Reglages.Options.ReliefMedUtilises != 0);
    const int rang = RangPharmacie(contexte_.Banque.TypeBase);
    if (rang >= 0) {
        OptB_[rang]->setChecked(true);
    }
    if (rang == 0) {
        LblBase_->setText(messages::BaseScriptelle());
    } else if (rang == kNbPharmacies - 1) {
        LblBase_->setText(EtatBasePublique(contexte_));
    }
}

void OngletPharmacies::Choisit(int rang)
{
    LblBase_->setText(messages::RechercheBase());
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    const ChoixPharmacie choix = ChoisitPharmacie(contexte_, rang);
    OptB_[choix.Rang]->setChecked(true);
    ChKMedU_->setChecked(choix.Relief && contexte_.Reglages.Options.ReliefMedUtilises != 0);
    ChKMedU_->setEnabled(choix.Relief);
    LblBase_->setText(choix.LblBase);
}

void OngletPharmacies::Lit(SaisieOptions& saisie) const
{
    saisie.BaseChoisie =
        std::ranges::any_of(OptB_, [](const QRadioButton* option) { return option->isChecked(); });
    saisie.ReliefMedUtilises = ChKMedU_->isChecked();
}

} // namespace settings
