#include "settings/windows/OngletLogo.h"

#include "application/windows/Style.h"
#include "settings/LogoOptions.h"
#include "settings/windows/BoiteMillimetres.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace settings {

namespace style = application::style;

namespace {

constexpr QSize kPlaceDeLImage(521, 185); ///< in pixels at 100 %
constexpr QSize kPlaceReduite(521, 84);
constexpr QSize kCadre(4, 4);

} // namespace

OngletLogo::OngletLogo(application::Contexte& contexte, QWidget* parent) : Onglet(parent), contexte_(contexte)
{
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins({});
    page->setSpacing(style::kEntreGroupes);
    page->addWidget(CarteDeLImage());
    page->addWidget(CarteDesMesures());
    page->addStretch();
    Charge();
    Branche();
    style::OrdreTab({ChkLog_, CmdChemin_, OptG_, OptD_, TxtH_, TxtL_, TxtX_, TxtY_});
}

QWidget* OngletLogo::CarteDeLImage()
{
    auto* carte = style::Carte(this);
    ChkLog_ = new QCheckBox(QStringLiteral("&Insérer un logo d'en-tête"), carte);
    ChkLog_->setObjectName(QStringLiteral("ChkLog"));
    CmdChemin_ = style::Bouton(QStringLiteral("CmdChemin"), QStringLiteral("&Chemin du fichier LOGO"),
                               QStringLiteral("folder2-open"), carte);
    Img_ = new QLabel(carte);
    Img_->setObjectName(QStringLiteral("Img"));
    Img_->setAccessibleName(QStringLiteral("Image du logo"));
    style::Encadre(Img_);
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(style::kEntreGroupes);
    rangee->addWidget(ChkLog_);
    rangee->addStretch();
    rangee->addWidget(CmdChemin_);
    auto* groupe = new QVBoxLayout(carte);
    groupe->setSpacing(style::kEntreGroupes);
    groupe->addLayout(rangee);
    groupe->addWidget(Img_);
    return carte;
}

QLayout* OngletLogo::RangeeDePosition(QWidget* carte)
{
    OptG_ = new QRadioButton(QStringLiteral("A &gauche"), carte);
    OptG_->setObjectName(QStringLiteral("OptG"));
    OptD_ = new QRadioButton(QStringLiteral("A &droite"), carte);
    OptD_->setObjectName(QStringLiteral("OptD"));
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(style::kEntreGroupes);
    rangee->addWidget(OptG_);
    rangee->addWidget(OptD_);
    rangee->addStretch();
    return rangee;
}

QWidget* OngletLogo::CarteDesMesures()
{
    auto* carte = style::Carte(this);
    auto* groupe = new QVBoxLayout(carte);
    groupe->setSpacing(style::kEntreGroupes);
    groupe->addLayout(RangeeDePosition(carte));
    auto* grille = new QGridLayout;
    groupe->addLayout(grille);
    grille->setHorizontalSpacing(style::kDansGroupe);
    grille->setVerticalSpacing(style::kDansGroupe);
    const auto pose = [&](int rangee, int colonne, const char* nom, const QString& legende,
                          const QString& nomAccessible, const QString& unite) {
        auto* boite = new BoiteMillimetres(nom, carte);
        auto* etiquette =
            style::Legende(QStringLiteral("Lbl") + QLatin1String(nom).mid(3), legende, carte, boite);
        style::Nomme(boite, nomAccessible);
        grille->addWidget(etiquette, rangee, colonne);
        grille->addWidget(boite, rangee, colonne + 1);
        grille->addWidget(style::Legende({}, unite, carte), rangee, colonne + 2);
        return boite;
    };
    const QString mm = QStringLiteral("mm");
    const QString plusOuMoins = QStringLiteral("mm   + ou -");
    TxtH_ =
        pose(0, 0, "TxtH", QStringLiteral("&Hauteur sur ordo en mm"), QStringLiteral("Hauteur du logo"), mm);
    TxtL_ =
        pose(1, 0, "TxtL", QStringLiteral("&Largeur sur ordo  en mm"), QStringLiteral("Largeur du logo"), mm);
    TxtX_ = pose(0, 4, "TxtX", QStringLiteral("&X ="), QStringLiteral("Décalage horizontal du logo"),
                 plusOuMoins);
    TxtY_ =
        pose(1, 4, "TxtY", QStringLiteral("&Y ="), QStringLiteral("Décalage vertical du logo"), plusOuMoins);
    grille->setColumnMinimumWidth(3, 2 * style::kMarge);
    grille->setColumnStretch(7, 1);
    return carte;
}

void OngletLogo::Branche()
{
    Options& options = contexte_.Reglages.Options;
    connect(TxtH_, &ChampMesure::Pris, this, [this] { contexte_.Reglages.EnCours.SaisieLogo = 0; });
    connect(TxtL_, &ChampMesure::Pris, this, [this] { contexte_.Reglages.EnCours.SaisieLogo = 1; });
    connect(ChkLog_, &QCheckBox::clicked, this, &OngletLogo::Insere);
    connect(OptG_, &QRadioButton::clicked, this, [&options] { options.PositionLogo = 1; });
    connect(OptD_, &QRadioButton::clicked, this, [&options] { options.PositionLogo = 2; });
    connect(CmdChemin_, &QPushButton::clicked, this, &OngletLogo::ChoisitFichier);
    connect(TxtH_, &QLineEdit::textChanged, this, &OngletLogo::SuitHauteur);
    connect(TxtL_, &QLineEdit::textChanged, this, &OngletLogo::SuitLargeur);
}

void OngletLogo::Charge()
{
    const Options& options = contexte_.Reglages.Options;
    const bool actif = options.LogoActif == 1;
    ChkLog_->setChecked(actif);
    (options.PositionLogo == 1 ? OptG_ : OptD_)->setChecked(true);
    CmdChemin_->setEnabled(actif);
    MontreMesures({QString::number(options.LogoHauteur), QString::number(options.LogoLargeur),
                   QString::number(options.LogoX), QString::number(options.LogoY)});
    PermetMesures(actif && !options.FichierLogo.isEmpty());
    if (actif) {
        MontreImage(AjusteLogo(contexte_));
    }
}

void OngletLogo::Insere(bool oui)
{
    const Options& options = contexte_.Reglages.Options;
    for (QWidget* controle : std::initializer_list<QWidget*>{CmdChemin_, OptG_, OptD_}) {
        controle->setEnabled(oui);
    }
    PermetMesures(oui && !options.FichierLogo.isEmpty());
    if (!oui) {
        MontreImage({});
        MontreMesures(QStringList(4, QStringLiteral("0")));
        return;
    }
    MontreMesures({QString::number(options.LogoHauteur), QString::number(options.LogoLargeur),
                   QString::number(options.LogoX), QString::number(options.LogoY)});
    MontreImage(AjusteLogo(contexte_));
}

void OngletLogo::ChoisitFichier()
{
    if (ChoisitLogo(contexte_)) {
        PermetMesures(true);
        MontreMesures(QStringList(4, QStringLiteral("0")));
        MontreImage(AjusteLogo(contexte_));
    }
}

void OngletLogo::MontreImage(const QImage& image)
{
    image_ = image;
    QPixmap vue = QPixmap::fromImage(image);
    if (!image.isNull()) {
        const double densite = devicePixelRatioF();
        vue = vue.scaled(place_ * densite, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        vue.setDevicePixelRatio(densite);
    }
    Img_->setPixmap(vue);
}

void OngletLogo::Adapte(QSize fenetre)
{
    const QSize place = fenetre.height() < kFenetreBasse ? kPlaceReduite : kPlaceDeLImage;
    if (place != place_) {
        place_ = place;
        Img_->setMinimumSize(place + kCadre);
        MontreImage(image_);
    }
}

void OngletLogo::MontreMesures(const QStringList& textes)
{
    BoiteMillimetres* boites[] = {TxtH_, TxtL_, TxtX_, TxtY_};
    for (int rang = 0; rang < 4; ++rang) {
        const QSignalBlocker sansProportion(boites[rang]);
        boites[rang]->setText(textes.at(rang));
    }
}

void OngletLogo::PermetMesures(bool oui)
{
    for (QWidget* boite : std::initializer_list<QWidget*>{TxtH_, TxtL_, TxtX_, TxtY_}) {
        boite->setEnabled(oui);
    }
}

void OngletLogo::SuitHauteur(const QString& texte)
{
    const OptionsEnCours& enCours = contexte_.Reglages.EnCours;
    if (enCours.SaisieLogo == 0) {
        TxtL_->setText(LargeurPour(texte, enCours.RatioLogo, TxtL_->text()));
    }
}

void OngletLogo::SuitLargeur(const QString& texte)
{
    const OptionsEnCours& enCours = contexte_.Reglages.EnCours;
    if (enCours.SaisieLogo == 1) {
        TxtH_->setText(HauteurPour(texte, enCours.RatioLogo, TxtH_->text()));
    }
}

void OngletLogo::Lit(SaisieOptions& saisie) const
{
    saisie.ChkLog = ChkLog_->isChecked();
    saisie.AvecImage = !image_.isNull();
    saisie.TxtH = TxtH_->text();
    saisie.TxtL = TxtL_->text();
    saisie.TxtX = TxtX_->text();
    saisie.TxtY = TxtY_->text();
}

} // namespace settings
