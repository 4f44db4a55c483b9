#include "settings/windows/OngletGeneral.h"

#include "application/windows/Style.h"
#include "settings/EffetsOptions.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace settings {

namespace style = application::style;

OngletGeneral::OngletGeneral(application::Contexte& contexte, QWidget* parent)
    : Onglet(parent), contexte_(contexte)
{
    auto* feuille = style::Carte(this);
    auto* programme = style::Carte(this);
    RemplitPage(Groupe("LblPage", "Les ordonnances", feuille));
    RemplitProgramme(Groupe("LblProgramme", "Le programme", programme));
    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(style::kEntreGroupes);
    gauche->addWidget(feuille);
    gauche->addStretch();
    auto* droite = new QVBoxLayout;
    droite->setSpacing(style::kEntreGroupes);
    droite->addWidget(CarteDuFormat());
    droite->addWidget(programme);
    droite->addStretch();
    colonnes_ = new QHBoxLayout(this);
    colonnes_->setContentsMargins({});
    colonnes_->setSpacing(style::kEntreGroupes);
    colonnes_->addLayout(gauche, 1);
    colonnes_->addLayout(droite, 1);
    largeurEntiere_ = colonnes_->minimumSize().width();
    ChkML_->setEnabled(contexte_.Reglages.Options.IconeHorloge != 0);
}

QVBoxLayout* OngletGeneral::Groupe(const char* nom, const char* titre, QWidget* carte)
{
    auto* groupe = new QVBoxLayout(carte);
    groupe->setSpacing(2);
    groupe->addWidget(style::Titre(QLatin1String(nom), QString::fromUtf8(titre), carte));
    return groupe;
}

QCheckBox* OngletGeneral::AjouteCase(QVBoxLayout* groupe, const Case& donnees)
{
    auto* boite = new QCheckBox(QString::fromUtf8(donnees.Legende), groupe->parentWidget());
    boite->setObjectName(QLatin1String(donnees.Nom));
    boite->setChecked(contexte_.Reglages.Options.*donnees.Variable != 0);
    groupe->addWidget(boite, 0, Qt::AlignLeft);
    if (donnees.Action) {
        connect(boite, &QCheckBox::clicked, this, donnees.Action);
    }
    return boite;
}

OngletGeneral::Case OngletGeneral::DeLaPage(const char* nom, const char* legende, quint8 Options::*variable)
{
    return {nom, legende, variable, [this, nom, variable](bool coche) {
                RegleSurLaPage(contexte_, variable, coche);
                Q_EMIT FocusVersFoc(findChild<QWidget*>(QLatin1String(nom)));
            }};
}

void OngletGeneral::RemplitPage(QVBoxLayout* groupe)
{
    AjouteCase(groupe, DeLaPage("ChkDate", "Imprimer la &date dans l'ordonnance", &Options::ImprimeDate));
    AjouteCase(groupe,
               DeLaPage("ChkS", "&Souligner le nom du patient sur l'ordonnance", &Options::SouligneNom));
    AjouteCase(groupe, {"ChkA", "Indiquer l'a&ge du patient sur l'ordonnance", &Options::AfficheAge,
                        [this](bool coche) {
                            settings::RegleAge(contexte_, coche);
                            Q_EMIT FocusVersFoc(findChild<QWidget*>(QStringLiteral("ChkA")));
                        }});
    AjouteCase(groupe,
               DeLaPage("ChkDDN", "Indiquer la date de naissan&ce sur l'ordonnance", &Options::AfficheDDN));
    AjouteCase(groupe,
               DeLaPage("ChkP", "Indiquer le &poids du patient sur l'ordonnance", &Options::AffichePoids));
    AjouteCase(groupe, DeLaPage("ChkInc", "I&ncrémenter les médicaments dans l'ordonnance",
                                &Options::IncrementeMedicaments));
    AjouteCase(groupe, DeLaPage("ChkNbMed", "Inscrire nombre &total de médicaments dans ordonnance",
                                &Options::TotalMedicaments));
    AjouteCase(groupe, {"ChkJournal", "Tenir un &journal des ordonnances prescriptes", &Options::TenirJournal,
                        [this](bool coche) { RegleJournal(contexte_, coche); }});
}

void OngletGeneral::RemplitProgramme(QVBoxLayout* groupe)
{
    AjouteCase(groupe, {"ChkL", "&Lancer au démarrage de Windows", &Options::LanceDemarrage,
                        [this](bool coche) { RegleLancement(contexte_, coche); }});
    AjouteCase(groupe, {"ChkIcone", "Afficher une &icône près de l'horloge", &Options::IconeHorloge,
                        [this](bool coche) { MontreIcone(coche); }});
    ChkML_ =
        AjouteCase(groupe, {"ChkML", "&Réduire en icône au lancement", &Options::ReduitLancement, nullptr});
    ChkMI_ =
        AjouteCase(groupe, {"ChkMI", "&Minimiser après impression", &Options::MinimiseImpression, nullptr});
    AjouteCase(groupe, {"ChkR", "Afficher la règl&e", &Options::AfficheRegle,
                        [this](bool coche) { RegleRegle(contexte_, coche); }});
}

QWidget* OngletGeneral::CarteDuFormat()
{
    auto* carte = style::Carte(this);
    auto* rangee = new QHBoxLayout(carte);
    rangee->setSpacing(style::kEntreGroupes);
    const QStringList legendes = {QStringLiteral("Format  A&4"), QStringLiteral("Format  A&5")};
    for (int membre = 0; membre < 2; ++membre) {
        ChkF_[membre] = new QCheckBox(legendes.at(membre), carte);
        ChkF_[membre]->setObjectName(QStringLiteral("ChkF(%1)").arg(membre));
        ChkF_[membre]->setChecked((contexte_.Reglages.Options.FormatA4 == 1) == (membre == 0));
        rangee->addWidget(ChkF_[membre]);
        connect(ChkF_[membre], &QCheckBox::clicked, this,
                [this, membre](bool coche) { ChoisitFormat(membre, coche); });
    }
    rangee->addStretch();
    return carte;
}

void OngletGeneral::ChoisitFormat(int membre, bool coche)
{
    ChkF_[1 - membre]->setChecked(!coche);
    RegleSurLaPage(contexte_, &Options::FormatA4, ChkF_[0]->isChecked());
    Q_EMIT FocusVersFoc(ChkF_[membre]);
}

void OngletGeneral::MontreIcone(bool oui)
{
    RegleIcone(contexte_, oui);
    ChkML_->setEnabled(oui);
    if (!oui) {
        ChkML_->setChecked(false);
    }
}

void OngletGeneral::Adapte(QSize fenetre)
{
    const int largeur = fenetre.width() - 2 * style::kMarge;
    colonnes_->setDirection(largeur < largeurEntiere_ ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void OngletGeneral::Lit(SaisieOptions& saisie) const
{
    saisie.ReduitLancement = ChkML_->isChecked();
    saisie.MinimiseImpression = ChkMI_->isChecked();
}

} // namespace settings
