#include "settings/windows/OngletInteractions.h"

#include "application/windows/Style.h"
#include "drugbank/Banque.h"

#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace settings {

namespace style = application::style;

OngletInteractions::OngletInteractions(application::Contexte& contexte, QWidget* parent)
    : Onglet(parent), contexte_(contexte)
{
    auto* carte = style::Carte(this);
    auto* groupe = new QVBoxLayout(carte);
    groupe->setSpacing(style::kDansGroupe);
    groupe->addWidget(
        style::Titre(QStringLiteral("LblNiveau"),
                     QStringLiteral("Niveau de prise en compte des interactions médicamenteuses "), carte));
    const QStringList legendes = {
        QStringLiteral("A &prendre en compte"), QStringLiteral("Précaution d'&emploi"),
        QStringLiteral("A&ssociation déconseillée"), QStringLiteral("&Contre indication")};
    for (int niveau = 0; niveau < legendes.size(); ++niveau) {
        auto* OptN = new QRadioButton(legendes.at(niveau), carte);
        OptN->setObjectName(QStringLiteral("OptN(%1)").arg(niveau));
        OptN->setChecked(contexte_.Banque.NiveauInteraction == niveau);
        groupe->addWidget(OptN, 0, Qt::AlignLeft);
        connect(OptN, &QRadioButton::clicked, this,
                [this, niveau] { contexte_.Banque.NiveauInteraction = niveau; });
    }
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins({});
    page->addWidget(carte);
    page->addStretch();
}

void OngletInteractions::Lit(SaisieOptions& /*saisie*/) const {}

} // namespace settings
