#include "drugbank/windows/FrmMajBanque.h"

#include "application/windows/Style.h"
#include "bank/Sources.h"
#include "common/Fichiers.h"
#include "drugbank/BanquePublique.h"
#include "drugbank/ProgresBanque.h"
#include "drugbank/RemplacementBanque.h"
#include "drugbank/messagesMaj.h"
#include "outside/Boites.h"
#include "outside/Horloge.h"
#include "outside/Lanceur.h"
#include "startup/Chemins.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollArea>

namespace drugbank {

namespace style = application::style;

namespace {

constexpr int kLargeur = 860; ///< first size, in pixels at 100 %
constexpr int kHauteur = 700;

constexpr int kHorsTexte = 2 * (style::kMarge + style::kMargeCarte) + 24; // margins, cards, a scroll bar
constexpr int kHauteurBilan = 110;

QString AdresseDuSite()
{
    return QStringLiteral("https://base-donnees-publique.medicaments.gouv.fr/");
}

QLabel* Texte(const QString& nom, const QString& texte, QWidget* parent)
{
    QLabel* legende = style::Legende(nom, texte, parent);
    legende->setWordWrap(true);
    return legende;
}

} // namespace

FrmMajBanque::FrmMajBanque(application::Contexte& contexte, application::Fenetres&)
    : contexte_(contexte), TxtDossier_(new QLineEdit(this)), TxtThesaurus_(new QLineEdit(this)),
      PrgMaj_(new QProgressBar(this)), TxtBilan_(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("FrmMajBanque"));
    setWindowTitle(QStringLiteral("Mise à jour de la base publique"));
    TxtDossier_->setObjectName(QStringLiteral("TxtDossier"));
    TxtThesaurus_->setObjectName(QStringLiteral("TxtThesaurus"));
    PrgMaj_->setObjectName(QStringLiteral("PrgMaj"));
    TxtBilan_->setObjectName(QStringLiteral("TxtBilan"));
    style::Nomme(PrgMaj_, QStringLiteral("Avancement de la mise à jour"));
    TxtBilan_->setMinimumHeight(kHauteurBilan);
    TxtBilan_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    TxtBilan_->setReadOnly(true);
    TxtBilan_->setTabChangesFocus(true);
    PrgMaj_->setMaximum(ProgresBanque::kTotal);
    PrgMaj_->setTextVisible(false);
    Dispose();
    Branche();
    Active(false);
    MontreBaseEnPlace();
    style::Dimensionne(this, kLargeur, kHauteur);
    CmdDossier_->setFocus();
}

void FrmMajBanque::Dispose()
{
    QVBoxLayout* disposition = style::Fenetre(this);
    auto* contenu = new QWidget(this);
    auto* cartes = new QVBoxLayout(contenu);
    cartes->setContentsMargins({});
    cartes->setSpacing(style::kEntreGroupes);
    cartes->addWidget(CarteFichiers());
    cartes->addWidget(CarteBilan(), 1);
    disposition->addWidget(style::Defilement(contenu, this), 1);
    disposition->addLayout(Boutons());
    style::OrdreTab({TxtDossier_, CmdDossier_, CmdSite_, TxtThesaurus_, CmdThesaurus_, TxtBilan_, CmdAnnule_,
                     CmdCopie_, CmdFerme_, CmdLance_});
}

QWidget* FrmMajBanque::CarteFichiers()
{
    QWidget* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    CmdDossier_ = style::Bouton(QStringLiteral("CmdDossier"), QStringLiteral("&Dossier ..."),
                                QStringLiteral("folder2-open"), carte);
    CmdThesaurus_ = style::Bouton(QStringLiteral("CmdThesaurus"), QStringLiteral("&Thésaurus ..."),
                                  QStringLiteral("file-earmark-text"), carte);
    CmdSite_ = style::Bouton(QStringLiteral("CmdSite"), QStringLiteral("Ouvrir le &site officiel"),
                             QStringLiteral("globe"), carte);
    colonne->addWidget(style::Titre(QStringLiteral("LblDossier"),
                                    QStringLiteral("D&ossier des fichiers téléchargés"), carte, TxtDossier_));
    colonne->addWidget(
        Texte(QStringLiteral("LblFichiers"),
              messages::MajATelecharger(banque::SourcesExigees().join(QStringLiteral(", ")),
                                        banque::SourcesFacultatives().join(QStringLiteral(", "))),
              carte));
    colonne->addLayout(Rangee(TxtDossier_, {CmdDossier_, CmdSite_}));
    colonne->addSpacing(style::kDansGroupe);
    colonne->addWidget(style::Titre(QStringLiteral("LblThesaurus"),
                                    QStringLiteral("T&exte du thésaurus des interactions"), carte,
                                    TxtThesaurus_));
    colonne->addWidget(Texte(QStringLiteral("LblSansThesaurus"), messages::MajThesaurus(), carte));
    colonne->addLayout(Rangee(TxtThesaurus_, {CmdThesaurus_}));
    return carte;
}

QHBoxLayout* FrmMajBanque::Rangee(QLineEdit* champ, const QList<QPushButton*>& boutons)
{
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(style::kDansGroupe);
    rangee->addWidget(champ, 1);
    for (QPushButton* bouton : boutons) {
        rangee->addWidget(bouton);
    }
    return rangee;
}

QWidget* FrmMajBanque::CarteBilan()
{
    QWidget* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    LblEtat_ = Texte(QStringLiteral("LblEtat"), QString(), carte);
    LblAvertissement_ = style::Avertissement(QStringLiteral("LblAvertissement"), QString(), carte);
    LblAvertissement_->setWordWrap(true);
    colonne->addWidget(LblEtat_);
    colonne->addWidget(PrgMaj_);
    colonne->addWidget(LblAvertissement_);
    colonne->addWidget(style::Titre(QStringLiteral("LblBilan"), QStringLiteral("&Bilan"), carte, TxtBilan_));
    colonne->addWidget(TxtBilan_, 1);
    return carte;
}

QHBoxLayout* FrmMajBanque::Boutons()
{
    CmdAnnule_ = style::Bouton(QStringLiteral("CmdAnnule"), QStringLiteral("&Annuler la mise à jour"),
                               QStringLiteral("x-lg"), this);
    CmdCopie_ = style::Bouton(QStringLiteral("CmdCopie"), QStringLiteral("&Copier le bilan"),
                              QStringLiteral("files"), this);
    CmdFerme_ = style::Bouton(QStringLiteral("CmdFerme"), QStringLiteral("&Fermer"), {}, this);
    CmdLance_ = style::BoutonPrincipal(QStringLiteral("CmdLance"), QStringLiteral("&Mettre à jour"),
                                       QStringLiteral("arrow-clockwise"), this);
    auto* rangee = new QHBoxLayout;
    rangee->addWidget(CmdAnnule_);
    rangee->addWidget(CmdCopie_);
    rangee->addStretch();
    rangee->addWidget(CmdFerme_);
    rangee->addWidget(CmdLance_);
    return rangee;
}

void FrmMajBanque::Branche()
{
    connect(CmdDossier_, &QPushButton::clicked, this, &FrmMajBanque::ChoisitDossier);
    connect(CmdThesaurus_, &QPushButton::clicked, this, &FrmMajBanque::ChoisitThesaurus);
    connect(CmdSite_, &QPushButton::clicked, this, &FrmMajBanque::OuvreSite);
    connect(CmdCopie_, &QPushButton::clicked, this, &FrmMajBanque::Copie);
    connect(CmdLance_, &QPushButton::clicked, this, &FrmMajBanque::Lance);
    connect(CmdFerme_, &QPushButton::clicked, this, &FrmMajBanque::reject);
    connect(CmdAnnule_, &QPushButton::clicked, this, [this] {
        LblEtat_->setText(messages::MajSArrete());
        maj_->Annule();
    });
}

void FrmMajBanque::ChoisitDossier()
{
    if (const auto dossier = contexte_.Dehors.Boites.Dossier(messages::MajTitreDossier())) {
        TxtDossier_->setText(common::CheminAffiche(*dossier));
        Avertit({});
    }
}

void FrmMajBanque::ChoisitThesaurus()
{
    const auto fichier = contexte_.Dehors.Boites.Ouvre({.Titre = messages::MajTitreThesaurus(),
                                                        .Filtre = QStringLiteral("Textes (*.txt)|*.txt"),
                                                        .Depart = TxtDossier_->text()});
    if (fichier) {
        TxtThesaurus_->setText(common::CheminAffiche(*fichier));
        Avertit({});
    }
}

void FrmMajBanque::OuvreSite()
{
    const bool ouvert = contexte_.Dehors.Lanceur.Ouvre(AdresseDuSite());
    Avertit(ouvert ? QStringList() : QStringList{messages::MajSiteNonOuvert(AdresseDuSite())});
}

void FrmMajBanque::Copie()
{
    QGuiApplication::clipboard()->setText(LblEtat_->text() + u'\n' + TxtBilan_->toPlainText());
    CmdCopie_->setText(messages::MajBilanCopie());
}

void FrmMajBanque::Lance()
{
    const banque::Demande demande{.Dossier = QDir::fromNativeSeparators(TxtDossier_->text().trimmed()),
                                  .Vers = CheminBanqueMiseAJour(contexte_.Chemins),
                                  .Interactions =
                                      QDir::fromNativeSeparators(TxtThesaurus_->text().trimmed())};
    const QString refus = RefusDeLaMaj(demande);
    TxtBilan_->clear();
    PrgMaj_->setValue(0);
    Avertit(refus.isEmpty() ? QStringList() : QStringList{refus});
    if (!refus.isEmpty()) {
        return;
    }
    const auto information = LitBanquePublique(contexte_.Chemins);
    datePrecedente_ = information && information->Nature.isEmpty() ? information->DateDonnees : QDate();
    LblEtat_->setText(messages::MajCommence());
    maj_ = std::make_unique<MiseAJourBanque>(demande, [this] { LibereBanquePublique(contexte_); });
    connect(maj_.get(), &MiseAJourBanque::Avance, this, [this](int part, const QString& texte) {
        PrgMaj_->setValue(part);
        LblEtat_->setText(texte);
    });
    connect(maj_.get(), &MiseAJourBanque::Finie, this, &FrmMajBanque::Termine);
    Active(true);
    CmdAnnule_->setFocus();
    maj_->Lance();
    MontreLaSuite();
}

/// On a small screen: how far it is, and what it came to.
void FrmMajBanque::MontreLaSuite()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    auto* defilement = findChild<QScrollArea*>();
    defilement->ensureWidgetVisible(TxtBilan_, 0, 0);
    defilement->ensureWidgetVisible(LblEtat_, 0, style::kMargeCarte);
}

void FrmMajBanque::Termine()
{
    const ResultatMaj resultat = maj_->Resultat();
    const bool reussie = resultat.Fin == banque::Fin::Importee || resultat.Fin == banque::Fin::AvecRefus;
    Active(false);
    PrgMaj_->setValue(reussie ? ProgresBanque::kTotal : 0);
    TxtBilan_->setPlainText(resultat.Bilan);
    CmdCopie_->setEnabled(reussie);
    if (reussie) {
        LblEtat_->setText(resultat.Phrase);
        Avertit(PlusAncienne() + ReservesEnPlace());
    } else {
        MontreBaseEnPlace();
        Avertit({resultat.Phrase});
    }
    MontreLaSuite();
    if (std::exchange(fermetureDemandee_, false) && !reussie) {
        reject();
    } else {
        (reussie ? CmdFerme_ : CmdDossier_)->setFocus();
    }
}

void FrmMajBanque::MontreBaseEnPlace()
{
    const auto information = LitBanquePublique(contexte_.Chemins);
    LblEtat_->setText(information ? messages::MajBaseEnPlace(JourAffiche(information->DateDonnees))
                                  : messages::MajAucuneBase());
    Avertit(ReservesEnPlace());
}

QStringList FrmMajBanque::ReservesEnPlace() const
{
    const auto information = LitBanquePublique(contexte_.Chemins);
    return information ? Reserves(*information, contexte_.Dehors.Horloge.Aujourdhui()) : QStringList();
}

/// Says so when an old download took the place of a newer one.
QStringList FrmMajBanque::PlusAncienne() const
{
    const auto information = LitBanquePublique(contexte_.Chemins);
    const bool ancienne =
        information && datePrecedente_.isValid() && information->DateDonnees < datePrecedente_;
    return ancienne ? QStringList{messages::MajPlusAncienne(JourAffiche(datePrecedente_))} : QStringList();
}

void FrmMajBanque::Avertit(const QStringList& phrases)
{
    LblAvertissement_->setText(phrases.join(u'\n'));
    LblAvertissement_->setVisible(!phrases.isEmpty());
    GardeLesHauteurs();
}

void FrmMajBanque::Active(bool enCours)
{
    for (QWidget* controle : {static_cast<QWidget*>(TxtDossier_), static_cast<QWidget*>(CmdDossier_),
                              static_cast<QWidget*>(TxtThesaurus_), static_cast<QWidget*>(CmdThesaurus_),
                              static_cast<QWidget*>(CmdLance_)}) {
        controle->setEnabled(!enCours);
    }
    CmdAnnule_->setEnabled(enCours);
    CmdCopie_->setEnabled(false);
    CmdCopie_->setText(QStringLiteral("&Copier le bilan"));
}

void FrmMajBanque::resizeEvent(QResizeEvent* evenement)
{
    QDialog::resizeEvent(evenement);
    GardeLesHauteurs();
}

/// A text of several lines keeps its height; what does not fit on a small screen scrolls.
void FrmMajBanque::GardeLesHauteurs()
{
    for (QLabel* texte : findChildren<QLabel*>()) {
        if (texte->wordWrap()) {
            texte->setMinimumHeight(qMax(0, texte->heightForWidth(width() - kHorsTexte))); // -1 without text
        }
    }
}

void FrmMajBanque::reject()
{
    if (maj_ && maj_->EnCours()) {
        fermetureDemandee_ = true;
        CmdAnnule_->click();
    } else {
        QDialog::reject();
    }
}

} // namespace drugbank
