#include "drugbank/windows/PanneauDocument.h"

#include "application/windows/Style.h"
#include "drugbank/windows/VueDocument.h"

#include <QBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace drugbank {

namespace {

namespace style = application::style;

constexpr int kLargeurLisible = 300;

} // namespace

PanneauDocument::PanneauDocument(QWidget* parent)
    : QWidget(parent), vue_(new VueDocument(this)),
      precedent_(style::BoutonIcone(QStringLiteral("CmdPrecedent"), QStringLiteral("Page précédente"),
                                    QStringLiteral("arrow-left"), this)),
      documents_(style::Bouton(QStringLiteral("CmdDocuments"), QStringLiteral("Documents"),
                               QStringLiteral("files"), this)),
      navigateur_(style::Bouton(QStringLiteral("CmdNavigateur"), QStringLiteral("Navigateur"),
                                QStringLiteral("globe"), this)),
      remarque_(style::Legende(QStringLiteral("LblWB"), {}, this))
{
    vue_->setObjectName(QStringLiteral("WB"));
    vue_->setAccessibleName(QStringLiteral("Document du médicament"));
    vue_->setMinimumWidth(kLargeurLisible);
    style::RaccourciVers(vue_, QStringLiteral("Alt+3"));
    precedent_->setShortcut(QKeySequence(QStringLiteral("Alt+7"))); // Alt+Left moves the rows of the lists
    style::Nomme(precedent_, QStringLiteral("Page précédente"), QStringLiteral("Alt+7"));
    documents_->setShortcut(QKeySequence(QStringLiteral("Alt+4")));
    style::Nomme(documents_, QStringLiteral("Documents de la banque pour ce médicament"),
                 QStringLiteral("Alt+4"));
    navigateur_->setShortcut(QKeySequence(QStringLiteral("Alt+W")));
    style::Nomme(navigateur_, QStringLiteral("Ouvrir dans le navigateur"), QStringLiteral("Alt+W"));
    remarque_->setWordWrap(true);
    auto* commandes = new QHBoxLayout;
    commandes->setSpacing(style::kDansGroupe);
    commandes->addWidget(style::Titre({}, QStringLiteral("Document"), this));
    commandes->addStretch();
    for (QWidget* commande : {static_cast<QWidget*>(precedent_), static_cast<QWidget*>(documents_),
                              static_cast<QWidget*>(navigateur_)}) {
        commandes->addWidget(commande);
    }
    auto* colonne = new QVBoxLayout(this);
    colonne->setContentsMargins({});
    colonne->setSpacing(style::kDansGroupe);
    colonne->addLayout(commandes);
    colonne->addWidget(vue_, 1);
    colonne->addWidget(remarque_);
    connect(vue_, &VueDocument::Change, this, &PanneauDocument::Suit);
    connect(precedent_, &QToolButton::clicked, vue_, &VueDocument::Recule);
    connect(navigateur_, &QPushButton::clicked, this, &PanneauDocument::DemandeNavigateur);
    connect(documents_, &QPushButton::clicked, this, &PanneauDocument::DocumentsDemandes);
    Suit();
}

QList<QWidget*> PanneauDocument::Controles() const
{
    return {vue_, precedent_, documents_, navigateur_};
}

void PanneauDocument::Suit()
{
    precedent_->setEnabled(vue_->PeutReculer());
    navigateur_->setEnabled(!vue_->AOuvrirDehors().isEmpty());
    Remarque(vue_->Remarque());
}

void PanneauDocument::Remarque(const QString& phrase)
{
    remarque_->setText(phrase);
    remarque_->setVisible(!phrase.isEmpty());
}

void PanneauDocument::DemandeNavigateur()
{
    const QUrl adresse = vue_->AOuvrirDehors();
    Q_EMIT AOuvrir(adresse.isLocalFile() ? adresse.toLocalFile() : QString::fromLatin1(adresse.toEncoded()));
}

} // namespace drugbank
