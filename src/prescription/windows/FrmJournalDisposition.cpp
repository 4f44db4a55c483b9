#include "application/windows/Style.h"
#include "patients/windows/ListeChoix.h"
#include "prescription/windows/FrmJournal.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

// What FrmJournal is made of.
namespace prescription {

namespace style = application::style;

void FrmJournal::Dispose()
{
    QVBoxLayout* fenetre = style::Fenetre(this);
    fenetre->addLayout(FaitChoix());
    fenetre->addLayout(FaitListes(), 1);
    fenetre->addLayout(FaitPied());
    style::OrdreTab({CmdOuvrir_, OptDate_, OptPatient_, LstDate_, LstPat_, TxtPresc_, CmdQuitter_});
    style::Dimensionne(this, 1020, 640);
    CmdOuvrir_->setFocus();
}

QLayout* FrmJournal::FaitChoix()
{
    OptDate_ = new QRadioButton(this);
    OptDate_->setObjectName(QStringLiteral("OptDate"));
    OptDate_->setChecked(true);
    OptPatient_ = new QRadioButton(this);
    OptPatient_->setObjectName(QStringLiteral("OptPatient"));
    Label1_ = FaitLegende("Label1", QStringLiteral("Par &date"), OptDate_);
    Label2_ = FaitLegende("Label2", QStringLiteral("Par &patient"), OptPatient_);
    LblDr_ = style::Titre(QStringLiteral("LblDr"), {}, this);
    auto* choix = new QHBoxLayout;
    choix->setSpacing(style::kDansGroupe);
    choix->addWidget(OptDate_);
    choix->addWidget(Label1_);
    choix->addSpacing(style::kEntreGroupes);
    choix->addWidget(OptPatient_);
    choix->addWidget(Label2_);
    choix->addStretch(1);
    choix->addWidget(LblDr_);
    return choix;
}

QLabel* FrmJournal::FaitLegende(const char* nom, const QString& texte, QRadioButton* option)
{
    auto* legende = new QLabel(texte, this);
    legende->setObjectName(QLatin1String(nom));
    legende->setBuddy(option);
    option->setAccessibleName(QString(texte).remove(u'&'));
    return legende;
}

QListView* FrmJournal::FaitListe(const char* nom, ListeJournal& rangs, QVBoxLayout* colonne,
                                 const QString& titre)
{
    auto* liste = new patients::ListeChoix(this);
    liste->setObjectName(QLatin1String(nom));
    liste->setModel(&rangs);
    liste->setUniformItemSizes(true);
    liste->setAccessibleName(QString(titre).remove(u'&'));
    colonne->addWidget(style::Titre({}, titre, this, liste));
    colonne->addWidget(liste, 1);
    return liste;
}

QLayout* FrmJournal::FaitListes()
{
    auto* listes = new QHBoxLayout;
    listes->setSpacing(style::kEntreGroupes);
    const auto colonne = [&](int part) {
        QWidget* carte = style::Carte(this);
        listes->addWidget(carte, part);
        return style::DansCarte(carte);
    };
    LstDate_ = FaitListe("LstDate", dates_, colonne(2), QStringLiteral("D&ates"));
    const int autour = LstDate_->verticalScrollBar()->sizeHint().width() + 2 * style::kEntreGroupes;
    LstDate_->setMinimumWidth(LstDate_->fontMetrics().horizontalAdvance(QStringLiteral(" 00/00/0000")) +
                              autour);
    LstPat_ = FaitListe("LstPat", patients_, colonne(4), QStringLiteral("Pat&ients"));
    QVBoxLayout* texte = colonne(5);
    TxtPresc_ = new QPlainTextEdit(this);
    TxtPresc_->setObjectName(QStringLiteral("TxtPresc"));
    TxtPresc_->setReadOnly(true);
    TxtPresc_->setTabChangesFocus(true);
    TxtPresc_->setAccessibleName(QStringLiteral("Prescription"));
    texte->addWidget(style::Titre({}, QStringLiteral("P&rescription"), this, TxtPresc_));
    texte->addWidget(TxtPresc_, 1);
    return listes;
}

QLayout* FrmJournal::FaitPied()
{
    LblEtat_ = style::Legende(QStringLiteral("LblEtat"), {}, this);
    PB_ = new QProgressBar(this);
    PB_->setObjectName(QStringLiteral("PB"));
    PB_->setRange(0, 1000);
    PB_->setFormat(QStringLiteral("Lecture du journal… %p %"));
    PB_->setAccessibleName(QStringLiteral("Lecture du journal"));
    PB_->hide();
    CmdQuitter_ =
        style::Bouton(QStringLiteral("CmdQuitter"), QStringLiteral("&Quitter"), QStringLiteral("x-lg"), this);
    CmdOuvrir_ = style::BoutonPrincipal(QStringLiteral("CmdOuvrir"), QStringLiteral("&Ouvrir un journal…"),
                                        QStringLiteral("journal-text"), this);
    style::Nomme(CmdQuitter_, QStringLiteral("Fermer le journal"), QStringLiteral("Échap"));
    auto* pied = new QHBoxLayout;
    pied->setSpacing(style::kDansGroupe);
    pied->addWidget(LblEtat_);
    pied->addWidget(PB_, 1);
    pied->addStretch(0);
    pied->addWidget(CmdQuitter_);
    pied->addWidget(CmdOuvrir_);
    return pied;
}

} // namespace prescription
