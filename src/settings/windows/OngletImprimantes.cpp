#include "settings/windows/OngletImprimantes.h"

#include "application/windows/Style.h"
#include "outside/Imprimantes.h"
#include "prescription/Apercu.h"
#include "settings/Reglages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

namespace settings {

namespace style = application::style;

OngletImprimantes::OngletImprimantes(application::Contexte& contexte, QWidget* parent)
    : Onglet(parent), contexte_(contexte), CboPrint_(new QComboBox(this)), Chkimp_(new QCheckBox(this))
{
    CboPrint_->setObjectName(QStringLiteral("CboPrint"));
    CboPrint_->setPlaceholderText(QStringLiteral("Choisissez une imprimante"));
    CboPrint_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon); // names can be long
    style::Nomme(CboPrint_, QStringLiteral("Imprimante des ordonnances"));
    Chkimp_->setObjectName(QStringLiteral("Chkimp"));
    Chkimp_->setText(QStringLiteral("&Ne plus montrer"));
    style::Nomme(Chkimp_, QStringLiteral("Confirmer l'imprimante et ne plus montrer cette fenêtre"));
    Chkimp_->hide();

    auto* carte = style::Carte(this);
    auto* groupe = new QVBoxLayout(carte);
    groupe->setSpacing(style::kDansGroupe);
    groupe->addWidget(
        style::Titre(QStringLiteral("LblPrint"), QStringLiteral("&Imprimantes"), carte, CboPrint_));
    groupe->addWidget(CboPrint_);
    auto* legende = style::Legende(
        QStringLiteral("LblPdf"),
        QStringLiteral("« %1 » enregistre la feuille dans le dossier PDF de vos données et l'ouvre.")
            .arg(outside::NomFichierPdf()),
        carte);
    legende->setWordWrap(true);
    groupe->addWidget(legende);
    groupe->addWidget(Chkimp_, 0, Qt::AlignLeft);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins({});
    page->addWidget(carte);
    page->addStretch();
    Charge();
    connect(Chkimp_, &QCheckBox::toggled, this, &OngletImprimantes::Confirme);
}

void OngletImprimantes::Charge()
{
    CboPrint_->addItems(contexte_.Dehors.Imprimantes.Noms());
    const QString& imprimante = contexte_.Reglages.Options.Imprimante;
    CboPrint_->setCurrentIndex(
        imprimante.isEmpty() ? -1
                             : CboPrint_->findText(imprimante, Qt::MatchExactly | Qt::MatchCaseSensitive));
    Chkimp_->setChecked(contexte_.Impression.EtatImprimante != 0);
}

void OngletImprimantes::Lit(SaisieOptions& saisie) const
{
    saisie.Imprimante = CboPrint_->currentText();
}

void OngletImprimantes::MontreConfirmation()
{
    Chkimp_->show();
}

void OngletImprimantes::Confirme(bool coche)
{
    contexte_.Impression.EtatImprimante = coche ? 1 : 0;
    Q_EMIT FocusVersOK();
    if (coche) {
        Q_EMIT PresseOK();
    }
}

} // namespace settings
