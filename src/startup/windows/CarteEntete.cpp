#include "startup/windows/CarteEntete.h"

#include "application/windows/Style.h"
#include "page/windows/VueAjustee.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace startup {

namespace style = application::style;

namespace {

constexpr int kHauteurApercu = 140;
constexpr int kLargeur = 460;

} // namespace

CarteEntete::CarteEntete(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("CartePropose"));
    setProperty("genre", QStringLiteral("carte"));
    setFixedWidth(kLargeur);
    PctPropose = new page::VueAjustee(QStringLiteral("PctPropose"), QStringLiteral("En-tête proposée"), this);
    PctPropose->setFixedHeight(kHauteurApercu);
    CmdUtiliseEntete =
        style::Bouton(QStringLiteral("CmdUtiliseEntete"), QStringLiteral("Utiliser &cette en-tête"),
                      QStringLiteral("check-lg"), this);
    CmdLaisseEntete =
        style::Lien(QStringLiteral("CmdLaisseEntete"), QStringLiteral("&Je la ferai moi-même"), this);
    auto* texte = style::Legende(
        QStringLiteral("LblPropose"),
        QStringLiteral("L'adresse et le téléphone s'ajoutent ensuite dans les options."), this);
    texte->setWordWrap(true);
    auto* reponses = new QHBoxLayout;
    reponses->setSpacing(style::kEntreGroupes);
    reponses->addWidget(CmdUtiliseEntete);
    reponses->addWidget(CmdLaisseEntete);
    reponses->addStretch();
    auto* disposition = new QVBoxLayout(this);
    disposition->setSpacing(style::kDansGroupe);
    disposition->addWidget(style::Titre(QStringLiteral("LblTitrePropose"),
                                        QStringLiteral("Une première en-tête pour vos ordonnances"), this));
    disposition->addWidget(PctPropose);
    disposition->addSpacing(style::kDansGroupe);
    disposition->addWidget(texte);
    disposition->addLayout(reponses);
    hide();
}

void CarteEntete::Montre(const page::Dessin& dessin)
{
    PctPropose->Montre(dessin);
}

} // namespace startup
