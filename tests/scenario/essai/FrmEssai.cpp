#include "scenario/essai/FrmEssai.h"

#include "common/Erreur.h"
#include "drugbank/LiaisonAide.h"
#include "drugbank/RequetesBanque.h"
#include "outside/Boites.h"
#include "outside/Horloge.h"
#include "outside/Imprimantes.h"
#include "outside/Lanceur.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <cstdlib>

namespace scenario {

namespace {

/// A line that tells when it is left.
class Champ : public QLineEdit
{
public:
    std::function<void()> Quitte;

protected:
    void focusOutEvent(QFocusEvent* evenement) override
    {
        QLineEdit::focusOutEvent(evenement);
        if (Quitte && evenement->reason() != Qt::ActiveWindowFocusReason) {
            Quitte();
        }
    }
};

/// A list that tells where a drag from it ends.
class ListeGlissee : public QListWidget
{
public:
    std::function<void(const QString&)> Depose;

protected:
    void mousePressEvent(QMouseEvent* evenement) override
    {
        QListWidget::mousePressEvent(evenement);
        prise_ = currentItem()->text();
    }
    void mouseReleaseEvent(QMouseEvent* evenement) override
    {
        QListWidget::mouseReleaseEvent(evenement);
        const QWidget* sous = window()->childAt(viewport()->mapTo(window(), evenement->pos()));
        if (Depose && sous && sous != viewport()) {
            Depose(prise_ + QStringLiteral(" sur ") + sous->objectName());
        }
    }

private:
    QString prise_;
};

class Surface : public QWidget, public page::PorteDessin
{
public:
    Surface()
    {
        page::ItemTexte texte;
        texte.Texte = QStringLiteral("bonjour");
        texte.X = 10;
        texte.Y = 20;
        page::ItemTrait trait;
        trait.X2 = 3;
        trait.Epaisseur = 2;
        dessin_.Items = {texte, trait};
    }
    const page::Dessin& DessinMontre() const override { return dessin_; }

private:
    page::Dessin dessin_;
};

} // namespace

FrmEssai::FrmEssai(const application::Dehors& dehors, const QString& cheminProgramme)
    : dehors_(dehors), cheminProgramme_(cheminProgramme)
{
    setObjectName(QStringLiteral("FrmEssai"));
    setWindowTitle(QStringLiteral("   Essai"));
    trace_ = new QLabel(this);
    trace_->setObjectName(QStringLiteral("LblTrace"));
    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(trace_);
    disposition->addWidget(Champs());
    disposition->addWidget(Listes());
    disposition->addWidget(Onglets());
    disposition->addWidget(Boutons());
    disposition->addWidget(Attentes());
}

QWidget* FrmEssai::Champs()
{
    auto* parent = new QWidget;
    auto* disposition = new QVBoxLayout(parent);
    auto* premier = new Champ;
    premier->setObjectName(QStringLiteral("Txt(0)"));
    premier->Quitte = [this, premier] { Ecris(QStringLiteral("quitté : ") + premier->text()); };
    auto* second = new QLineEdit(QStringLiteral("abc"));
    second->setObjectName(QStringLiteral("Txt(1)"));
    connect(second, &QLineEdit::returnPressed, this, [this] { Ecris(QStringLiteral("entrée")); });
    auto* seul = new QLineEdit;
    seul->setObjectName(QStringLiteral("Seul(3)"));
    auto* long_ = new QTextEdit(QStringLiteral("première ligne<br>seconde ligne"));
    long_->setObjectName(QStringLiteral("TxtLong"));
    auto* grise = new QLineEdit;
    grise->setObjectName(QStringLiteral("TxtGris"));
    grise->setEnabled(false);
    for (QWidget* widget :
         {static_cast<QWidget*>(premier), static_cast<QWidget*>(second), static_cast<QWidget*>(seul),
          static_cast<QWidget*>(long_), static_cast<QWidget*>(grise)}) {
        disposition->addWidget(widget);
    }
    return parent;
}

QWidget* FrmEssai::Listes()
{
    auto* parent = new QWidget;
    auto* disposition = new QHBoxLayout(parent);
    auto* liste = new ListeGlissee;
    liste->setObjectName(QStringLiteral("Lst"));
    liste->addItems({QStringLiteral("  un"), QStringLiteral("  deux"), QStringLiteral("  trois"),
                     QStringLiteral("  quatre") + QString(100, QLatin1Char(' ')) + QLatin1Char('1')});
    liste->item(1)->setData(Qt::UserRole, 22);
    liste->item(2)->setForeground(QColor(255, 0, 0));
    liste->Depose = [this](const QString& texte) { Ecris(texte); };
    connect(liste, &QListWidget::itemDoubleClicked, this,
            [this](const QListWidgetItem* item) { Ecris(QStringLiteral("double") + item->text()); });
    auto* choix = new QComboBox;
    choix->setObjectName(QStringLiteral("Cbo"));
    choix->addItems({QStringLiteral("rouge"), QStringLiteral("vert")});
    connect(choix, &QComboBox::textActivated, this, &FrmEssai::Ecris);
    auto* arbre = new QTreeWidget;
    arbre->setObjectName(QStringLiteral("Arbre"));
    auto* racine = new QTreeWidgetItem(arbre, {QStringLiteral("racine")});
    racine->setData(0, Qt::UserRole, QStringLiteral("etiquette"));
    new QTreeWidgetItem(racine, {QStringLiteral("feuille")});
    arbre->expandAll();
    auto* surface = new Surface;
    surface->setObjectName(QStringLiteral("Pct"));
    for (QWidget* widget : {static_cast<QWidget*>(liste), static_cast<QWidget*>(choix),
                            static_cast<QWidget*>(arbre), static_cast<QWidget*>(surface)}) {
        disposition->addWidget(widget);
    }
    return parent;
}

QWidget* FrmEssai::Onglets()
{
    auto* onglets = new QTabWidget;
    onglets->setObjectName(QStringLiteral("TS"));
    const auto page = [&](const QString& titre, const QString& bouton, const std::function<void()>& fait) {
        auto* contenu = new QWidget;
        new QHBoxLayout(contenu);
        Bouton(contenu, bouton, fait);
        onglets->addTab(contenu, titre);
    };
    page(QStringLiteral("&Programmes"), QStringLiteral("CmdOnglet(0)"), [this] {
        dehors_.Lanceur.Lance(QStringLiteral("/opt/outil"),
                              {QStringLiteral("un"), QStringLiteral("deux mots")});
    });
    page(QStringLiteral("&Documents"), QStringLiteral("CmdOnglet(1)"),
         [this] { dehors_.Lanceur.Ouvre(QStringLiteral("/doc/Aide.pdf")); });
    return onglets;
}

QWidget* FrmEssai::Boutons()
{
    auto* parent = new QWidget;
    auto* disposition = new QHBoxLayout(parent);
    auto* coche = new QCheckBox(QStringLiteral("&Coche"));
    coche->setObjectName(QStringLiteral("Chk"));
    coche->setMinimumWidth(200);
    disposition->addWidget(coche);
    auto* cache = new QPushButton(parent);
    cache->setObjectName(QStringLiteral("CmdCache"));
    cache->hide();
    disposition->addWidget(cache);
    Bouton(parent, QStringLiteral("CmdMenu"), [this] { OuvreMenu(); });
    Bouton(parent, QStringLiteral("CmdModale"), [this] { OuvreModale(); });
    Bouton(parent, QStringLiteral("CmdBoite"), [this] {
        Ecris(dehors_.Boites.Question(QStringLiteral("Vraiment ?\nSûr ?")) ? QStringLiteral("oui")
                                                                           : QStringLiteral("non"));
        Ecris(trace_->text() + dehors_.Boites.Demande({QStringLiteral("Nom"), QStringLiteral("a")})
                                   .value_or(QStringLiteral(" rien")));
    });
    Bouton(parent, QStringLiteral("CmdDialogues"), [this] { MontreDialogues(); });
    Bouton(parent, QStringLiteral("CmdBoucleFinie"), [] { QCoreApplication::exit(); });
    Bouton(parent, QStringLiteral("CmdPaliers"), [this] {
        for (int i = 0; i < 50; ++i) {
            QCoreApplication::processEvents();
        }
        Ecris(QStringLiteral("paliers passés"));
    });
    Bouton(parent, QStringLiteral("CmdTard"), [this] {
        QTimer::singleShot(300, this, [this] { findChild<QWidget*>(QStringLiteral("CmdCache"))->show(); });
    });
    Bouton(parent, QStringLiteral("CmdImprime"), [this] {
        dehors_.Imprimantes.Imprime(dehors_.Imprimantes.ParDefaut(),
                                    {.Titre = {}, .Pages = {page::Dessin()}, .CheminPdf = {}});
    });
    Bouton(parent, QStringLiteral("CmdHorloge"),
           [this] { Ecris(dehors_.Horloge.Maintenant().toString(QStringLiteral("dd/MM/yyyy hh:mm"))); });
    Bouton(parent, QStringLiteral("CmdErreur"),
           [] { throw common::Erreur(QStringLiteral("Le disque est plein."), QStringLiteral("Medoc.mdb")); });
    Bouton(parent, QStringLiteral("CmdPlante"), [] { std::abort(); });
    Bouton(parent, QStringLiteral("CmdSort"), [] { std::_Exit(0); });
    Bouton(parent, QStringLiteral("CmdBoucle"), [] {
        for (volatile bool sans = true; sans;) {
        }
    });
    Bouton(parent, QStringLiteral("CmdQuitter"), [this] { close(); });
    return parent;
}

QWidget* FrmEssai::Attentes()
{
    auto* parent = new QWidget;
    new QHBoxLayout(parent);
    const auto ajoute = [this](const QString& texte) { Ecris(trace_->text() + texte); };
    Bouton(parent, QStringLiteral("CmdAttend"), [this, ajoute] {
        Ecris({});
        dehors_.Horloge.Dans(9000, this, [ajoute] { ajoute(QStringLiteral("c")); });
        dehors_.Horloge.Dans(3000, this, [this, ajoute] {
            ajoute(QStringLiteral("a"));
            dehors_.Horloge.Dans(5999, this, [ajoute] { ajoute(QStringLiteral("b")); });
        });
        QCoreApplication::processEvents();
        ajoute(QStringLiteral("d'abord : "));
    });
    Bouton(parent, QStringLiteral("CmdAttendBoite"), [this] {
        dehors_.Horloge.Dans(2000, this, [this] { dehors_.Boites.Information(QStringLiteral("Après 2 s")); });
        dehors_.Horloge.Dans(3000, this, [this] { Ecris(QStringLiteral("sous la boîte")); });
    });
    Bouton(parent, QStringLiteral("CmdSansFin"), [this] {
        sondes_ = 0;
        Sonde();
    });
    Bouton(parent, QStringLiteral("CmdArrete"), [this] {
        Ecris(QString::number(sondes_));
        sondes_ = -1;
    });
    Bouton(parent, QStringLiteral("CmdBanque"), [this] { DemandeALaBanque(); });
    return parent;
}

void FrmEssai::Sonde()
{
    if (sondes_ >= 0) {
        ++sondes_;
        dehors_.Horloge.Dans(50, this, [this] { Sonde(); });
    }
}

/// What the bank of product 2 finds for "dol", and the product of CIP 34.
void FrmEssai::DemandeALaBanque()
{
    const drugbank::LiaisonAide aide(cheminProgramme_ + QStringLiteral("/vidalhelper"));
    QString chemin;
    if (!aide.Chargee() || aide.CheminDeBanque(2, chemin) != 0) {
        Ecris(aide.Chargee() ? QStringLiteral("pas installée") : QStringLiteral("pas d'aide"));
        return;
    }
    const auto banque = std::make_shared<drugbank::LiaisonBanque>(chemin);
    drugbank::RequetesBanque requetes(banque, 77);
    QString trace = banque->Chargee() ? QStringLiteral("chargée") : QStringLiteral("illisible");
    for (const drugbank::Pack& pack : requetes.RecherchePacks(QStringLiteral("dol"), 64)) {
        trace += QStringLiteral("|%1 %2 %3").arg(pack.Nom).arg(pack.Prix).arg(pack.Produit);
    }
    banque->PackService_searchByCip(77, "34"); // never released
    Ecris(trace);
}

void FrmEssai::Bouton(QWidget* parent, const QString& nom, const std::function<void()>& fait)
{
    auto* bouton = new QPushButton(nom.mid(3), parent);
    bouton->setObjectName(nom);
    connect(bouton, &QPushButton::clicked, this, fait);
    parent->layout()->addWidget(bouton);
}

void FrmEssai::Ecris(const QString& texte)
{
    trace_->setText(texte);
}

void FrmEssai::OuvreModale()
{
    QDialog modale;
    modale.setObjectName(QStringLiteral("FrmModale"));
    modale.resize(300, 200);
    auto* fin = new QPushButton(QStringLiteral("&Fin"), &modale);
    fin->setObjectName(QStringLiteral("CmdFin"));
    connect(fin, &QPushButton::clicked, &modale, &QDialog::accept);
    modale.exec();
    Ecris(QStringLiteral("modale fermée"));
}

void FrmEssai::MontreDialogues()
{
    outside::Boites& boites = dehors_.Boites;
    const QString rien = QStringLiteral("rien");
    QStringList reponses;
    reponses << boites.Dossier(QStringLiteral("Quel dossier ?")).value_or(rien);
    const outside::ChoixFichier choix{QStringLiteral("Quel fichier ?"),
                                      QStringLiteral("Images (*.bmp)|*.bmp"), QStringLiteral("/depart")};
    reponses << boites.Ouvre(choix).value_or(rien) << boites.Enregistre(choix).value_or(rien);
    const auto police = boites.ChoisitPolice({});
    reponses << (police ? QStringLiteral("%1 %2 %3").arg(police->Nom).arg(police->Taille).arg(police->Gras)
                        : rien);
    const auto couleur = boites.ChoisitCouleur(255);
    reponses << (couleur ? QString::number(*couleur) : rien);
    boites.Stop(QStringLiteral("Fini"));
    Ecris(reponses.join(QLatin1Char('|')));
}

void FrmEssai::OuvreMenu()
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("mnuEssai"));
    QAction* entree =
        menu->addAction(QStringLiteral("&Entrée"), this, [this] { Ecris(QStringLiteral("menu")); });
    entree->setObjectName(QStringLiteral("mnuEntree"));
    QAction* grise = menu->addAction(QStringLiteral("Grise"));
    grise->setObjectName(QStringLiteral("mnuGrise"));
    grise->setEnabled(false);
    menu->exec(mapToGlobal(QPoint(10, 10)));
}

void FrmEssai::closeEvent(QCloseEvent* evenement)
{
    evenement->accept();
    Q_EMIT Quitte();
}

} // namespace scenario
