#include "settings/windows/OngletConfiguration.h"

#include "application/windows/Style.h"
#include "settings/EffetsOptions.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace settings {

namespace style = application::style;

OngletConfiguration::OngletConfiguration(application::Contexte& contexte, QWidget* parent)
    : Onglet(parent), contexte_(contexte)
{
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins({});
    page->setSpacing(style::kEntreGroupes);
    page->addWidget(CarteDuMenu());
    page->addWidget(CarteDesConcepteurs());
    page->addStretch();
}

QWidget* OngletConfiguration::CarteDuMenu()
{
    auto* carte = style::Carte(this);
    auto* groupe = new QVBoxLayout(carte);
    groupe->setSpacing(style::kDansGroupe);
    groupe->addWidget(style::Titre(QStringLiteral("LblMenu"),
                                   QStringLiteral("Choix de barre de menu pour l'ordonnance"), carte));
    const QStringList legendes = {QStringLiteral("Menu &1 "), QStringLiteral("Menu &2 ")};
    const QStringList noms = {QStringLiteral("Barre de commandes à gauche de la feuille"),
                              QStringLiteral("Barre de commandes au-dessus de la feuille")};
    for (int barre = 0; barre < 2; ++barre) {
        auto* Opt = new QRadioButton(legendes.at(barre), carte);
        Opt->setObjectName(QStringLiteral("Opt(%1)").arg(barre));
        style::Nomme(Opt, noms.at(barre));
        Opt->setChecked((contexte_.Reglages.Options.BarreMenu != 0) == (barre == 1));
        groupe->addWidget(Opt, 0, Qt::AlignLeft);
        connect(Opt, &QRadioButton::clicked, this, [this, barre] { RegleBarreMenu(contexte_, barre); });
    }
    return carte;
}

QWidget* OngletConfiguration::CarteDesConcepteurs()
{
    auto* carte = style::Carte(this);
    auto* CmdET = style::Bouton(QStringLiteral("CmdET"), QStringLiteral("Configurer &En-tête ordonnance"),
                                QStringLiteral("card-text"), carte);
    auto* CmdMEP =
        style::Bouton(QStringLiteral("CmdMEP"), QStringLiteral("Configurer &mise en page ordonnance"),
                      QStringLiteral("rulers"), carte);
    auto* groupe = new QHBoxLayout(carte);
    groupe->setSpacing(style::kEntreGroupes);
    for (QPushButton* bouton : {CmdET, CmdMEP}) {
        style::AligneAGauche(bouton);
        groupe->addWidget(bouton, 1);
    }
    connect(CmdET, &QPushButton::clicked, this, &OngletConfiguration::EnteteDemandee);
    connect(CmdMEP, &QPushButton::clicked, this, &OngletConfiguration::MiseEnPageDemandee);
    return carte;
}

void OngletConfiguration::Lit(SaisieOptions& /*saisie*/) const {}

} // namespace settings
