#include "certificates/windows/FrmCertif.h"
#include "drugbank/Banque.h"
#include "drugbank/windows/FrmIAM.h"
#include "drugbank/windows/FrmMajBanque.h"
#include "medication/windows/FrmGEN.h"
#include "medication/windows/FrmMedoc.h"
#include "medication/windows/FrmNouveauM.h"
#include "medication/windows/FrmPoso.h"
#include "medication/windows/ImageAnimee.h"
#include "patients/windows/FrmNouveauP.h"
#include "patients/windows/FrmPatient.h"
#include "prescription/Editeur.h"
#include "prescription/Ordonnance.h"
#include "prescription/windows/FrmMemo.h"
#include "prescription/windows/FrmOrdo.h"
#include "settings/Reglages.h"
#include "settings/windows/FrmOptions.h"
#include "startup/windows/FrmAPROPOS.h"
#include "startup/windows/FrmMedecins.h"
#include "startup/windows/ProgrammeDeTest.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTabBar>

namespace {

bool EstUnControle(const QWidget& w)
{
    return qobject_cast<const QAbstractButton*>(&w) || qobject_cast<const QLineEdit*>(&w) ||
           qobject_cast<const QComboBox*>(&w) || qobject_cast<const QAbstractItemView*>(&w) ||
           qobject_cast<const QPlainTextEdit*>(&w) || qobject_cast<const QTabBar*>(&w);
}

bool EstUnePartie(const QWidget& w)
{
    const QWidget* parent = w.parentWidget();
    return w.testAttribute(Qt::WA_TransparentForMouseEvents) || w.width() == 0 ||
           (parent && (qobject_cast<const QLineEdit*>(parent) || qobject_cast<const QTabBar*>(parent) ||
                       qobject_cast<const QComboBox*>(parent)));
}

/// The controls that the doctor sees and uses; their inner parts are not counted.
QList<QWidget*> Controles(const QWidget& fenetre)
{
    QList<QWidget*> controles;
    for (QWidget* w : fenetre.findChildren<QWidget*>()) {
        if (w->window() == &fenetre && w->isVisible() && EstUnControle(*w) && !EstUnePartie(*w)) {
            controles.append(w);
        }
    }
    return controles;
}

QString NomAccessible(QWidget& w)
{
    const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&w);
    return interface ? interface->text(QAccessible::Name) : QString();
}

QChar Lettre(const QString& texte)
{
    const QString touche = QKeySequence::mnemonic(texte).toString();
    return touche.isEmpty() ? QChar() : touche.back();
}

/// The Alt letter that leads to a control: its own, or that of the label beside it.
QChar LettreDe(const QWidget& fenetre, const QWidget& controle)
{
    if (const auto* bouton = qobject_cast<const QAbstractButton*>(&controle)) {
        const QString touche = bouton->shortcut().toString();
        return touche.startsWith(QLatin1String("Alt+")) ? touche.back() : QChar();
    }
    for (const QLabel* etiquette : fenetre.findChildren<QLabel*>()) {
        if (etiquette->isVisible() && etiquette->buddy() == &controle) {
            return Lettre(etiquette->text());
        }
    }
    const auto* raccourci = controle.findChild<QShortcut*>({}, Qt::FindDirectChildrenOnly);
    return raccourci ? raccourci->key().toString().back() : QChar();
}

/// A tab is reached with the arrows, the lone text of a window has the focus, and Enter presses "OK".
bool SePasseDeLettre(const QWidget& controle)
{
    const auto* bouton = qobject_cast<const QPushButton*>(&controle);
    return qobject_cast<const QTabBar*>(&controle) || controle.window()->focusWidget() == &controle ||
           (bouton && bouton->isDefault());
}

/// The arrows lead to the options of a group once Tab has come to one of them.
bool RecoitTab(const QWidget& controle)
{
    if (!qobject_cast<const QRadioButton*>(&controle)) {
        return controle.focusPolicy() & Qt::TabFocus;
    }
    return std::ranges::any_of(controle.parentWidget()->findChildren<QRadioButton*>(),
                               [](const QRadioButton* o) { return o->focusPolicy() & Qt::TabFocus; });
}

bool DansLOrdreTab(const QWidget& fenetre, const QWidget& controle)
{
    const QWidget* suivant = fenetre.nextInFocusChain();
    while (suivant != &fenetre && suivant != &controle) {
        suivant = suivant->nextInFocusChain();
    }
    return suivant == &controle && RecoitTab(controle);
}

QRect Place(const QWidget& fenetre, const QWidget& w)
{
    return {w.mapTo(&fenetre, QPoint()), w.size()};
}

QString Coupe(const QWidget& fenetre, const QList<QWidget*>& controles)
{
    for (const QWidget* w : controles) {
        const QSize besoin = w->minimumSizeHint();
        const bool vue = qobject_cast<const QAbstractItemView*>(w) || qobject_cast<const QPlainTextEdit*>(w);
        if (!fenetre.rect().contains(Place(fenetre, *w)) ||
            (!vue && (w->width() < besoin.width() || w->height() < besoin.height()))) {
            return w->objectName();
        }
    }
    return {};
}

QString Chevauchement(const QWidget& fenetre, const QList<QWidget*>& controles)
{
    for (const QWidget* a : controles) {
        for (const QWidget* b : controles) {
            if (a != b && !a->isAncestorOf(b) && !b->isAncestorOf(a) &&
                Place(fenetre, *a).intersects(Place(fenetre, *b))) {
                return a->objectName() + QLatin1Char(' ') + b->objectName();
            }
        }
    }
    return {};
}

using Ouverture = QWidget& (*)(support::ProgrammeDeTest&);

template <typename F> QWidget& Montre(support::ProgrammeDeTest& programme)
{
    programme.Installe();
    auto& fenetre = programme.Fenetres().Donne<F>();
    fenetre.show();
    return fenetre;
}

QWidget& MontreOrdo(support::ProgrammeDeTest& programme, int barre)
{
    programme.Installe();
    programme.Contexte().Reglages.Options.BarreMenu = barre;
    programme.Contexte().Ordonnance.OrdoMemorisee = 1;
    programme.Contexte().Ordonnance.TitreMemo = QStringLiteral("Angine de l'enfant");
    auto& fenetre = programme.Fenetres().Donne<prescription::FrmOrdo>();
    fenetre.show();
    return fenetre;
}

QWidget& MontreOptions(support::ProgrammeDeTest& programme, int onglet)
{
    QWidget& fenetre = Montre<settings::FrmOptions>(programme);
    fenetre.findChild<QTabBar*>(QStringLiteral("TS"))->setCurrentIndex(onglet);
    return fenetre;
}

QWidget& MontreMedoc(support::ProgrammeDeTest& programme, int ald)
{
    QWidget& fenetre = Montre<medication::FrmMedoc>(programme);
    auto* ChkALD = fenetre.findChild<QAbstractButton*>(QStringLiteral("ChkALD"));
    if (ald != ChkALD->isChecked()) {
        ChkALD->click();
    }
    return fenetre;
}

QWidget& MontreMedocBanque(support::ProgrammeDeTest& programme)
{
    programme.Installe();
    programme.Contexte().Banque.TypeBase = QStringLiteral("TVS");
    programme.Contexte().Banque.DateExpirationBase = QStringLiteral("31/03/2027");
    auto& fenetre = programme.Fenetres().Donne<medication::FrmMedoc>();
    fenetre.show();
    fenetre.findChild<QLineEdit*>(QStringLiteral("TxtCherche"))->setText(QStringLiteral("DOLI"));
    for (auto* image : fenetre.findChildren<medication::ImageAnimee*>()) {
        image->Joue();
    }
    return fenetre;
}

QWidget& MontreGeneriques(support::ProgrammeDeTest& programme)
{
    programme.Installe();
    programme.Contexte().Choix.LstGen =
        QStringList{QString(), QStringLiteral("  PARACETAMOL          1.16  €")};
    auto& fenetre = programme.Fenetres().Donne<medication::FrmGEN>();
    fenetre.show();
    return fenetre;
}

QWidget& MontreNouveauM(support::ProgrammeDeTest& programme, const char* typeBase)
{
    programme.Installe();
    programme.Contexte().Banque.TypeBase = QLatin1String(typeBase);
    auto& fenetre = programme.Fenetres().Donne<medication::FrmNouveauM>();
    if (programme.Contexte().Banque.TypeBase != QLatin1String("BIP")) {
        fenetre.NommeBibliotheque();
    }
    fenetre.show();
    return fenetre;
}

} // namespace

Q_DECLARE_METATYPE(Ouverture)

class TestAccessibilite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void EveryControlHasAName_data() { Fenetres(); }
    void EveryControlHasAName();
    void EveryControlHasAPlaceInTheTabOrder_data() { Fenetres(); }
    void EveryControlHasAPlaceInTheTabOrder();
    void EveryAltLetterIsItsOwn_data() { Fenetres(); }
    void EveryAltLetterIsItsOwn();
    void OneButtonIsTheDefault_data() { Fenetres(); }
    void OneButtonIsTheDefault();
    void EscapeClosesWhereACancelStands_data() { Fenetres(); }
    void EscapeClosesWhereACancelStands();
    void NothingIsCutOrOverlapsOnASmallScreen_data() { Fenetres(); }
    void NothingIsCutOrOverlapsOnASmallScreen();

private:
    void Fenetres();
    QWidget& Ouvre();

    std::unique_ptr<support::ProgrammeDeTest> programme_;
};

void TestAccessibilite::init()
{
    programme_ = std::make_unique<support::ProgrammeDeTest>();
}

void TestAccessibilite::cleanup()
{
    programme_.reset();
}

void TestAccessibilite::Fenetres()
{
    QTest::addColumn<Ouverture>("ouvre");
    using P = support::ProgrammeDeTest;
    const auto rang = [](const char* nom, Ouverture ouvre) { QTest::newRow(nom) << ouvre; };
    rang("FrmDepart", [](P& p) -> QWidget& {
        startup::FrmDepart& depart = p.Installe();
        depart.show();
        return depart;
    });
    rang("FrmChoixBase", &Montre<startup::FrmChoixBase>);
    rang("FrmMedecins", &Montre<startup::FrmMedecins>);
    rang("FrmAPROPOS", &Montre<startup::FrmAPROPOS>);
    rang("FrmPatient", &Montre<patients::FrmPatient>);
    rang("FrmNouveauP", &Montre<patients::FrmNouveauP>);
    rang("FrmOrdo, bar at the left", [](P& p) -> QWidget& { return MontreOrdo(p, 0); });
    rang("FrmOrdo, bar above", [](P& p) -> QWidget& { return MontreOrdo(p, 1); });
    rang("FrmMedoc", [](P& p) -> QWidget& { return MontreMedoc(p, 0); });
    rang("FrmMedoc, two zones", [](P& p) -> QWidget& { return MontreMedoc(p, 1); });
    rang("FrmMedoc, drug bank", &MontreMedocBanque);
    rang("FrmGEN", &MontreGeneriques);
    rang("FrmNouveauM", [](P& p) -> QWidget& { return MontreNouveauM(p, "BIP"); });
    rang("FrmNouveauM, drug bank", [](P& p) -> QWidget& { return MontreNouveauM(p, "TVS"); });
    rang("FrmPoso", &Montre<medication::FrmPoso>);
    rang("FrmMemo", &Montre<prescription::FrmMemo>);
    rang("FrmCertif", &Montre<certificates::FrmCertif>);
    rang("FrmOptions, Configuration", [](P& p) -> QWidget& { return MontreOptions(p, 0); });
    rang("FrmOptions, Options", [](P& p) -> QWidget& { return MontreOptions(p, 1); });
    rang("FrmOptions, Imprimantes", [](P& p) -> QWidget& { return MontreOptions(p, 2); });
    rang("FrmOptions, Pharmacies", [](P& p) -> QWidget& { return MontreOptions(p, 3); });
    rang("FrmOptions, Interactions", [](P& p) -> QWidget& { return MontreOptions(p, 4); });
    rang("FrmOptions, Logo", [](P& p) -> QWidget& { return MontreOptions(p, 5); });
    rang("FrmOptions, Duplicata", [](P& p) -> QWidget& { return MontreOptions(p, 6); });
    rang("FrmIAM", &Montre<drugbank::FrmIAM>);
    rang("FrmMajBanque", &Montre<drugbank::FrmMajBanque>);
}

QWidget& TestAccessibilite::Ouvre()
{
    const auto ouvre = *static_cast<Ouverture*>(QTest::qData("ouvre", qMetaTypeId<Ouverture>()));
    QWidget& fenetre = ouvre(*programme_);
    fenetre.resize(fenetre.size().boundedTo({1366, 768}));
    fenetre.activateWindow();
    QTest::qWait(1);
    return fenetre;
}

void TestAccessibilite::EveryControlHasAName()
{
    for (QWidget* controle : Controles(Ouvre())) {
        QVERIFY2(!NomAccessible(*controle).trimmed().isEmpty(), qPrintable(controle->objectName()));
    }
}

void TestAccessibilite::EveryControlHasAPlaceInTheTabOrder()
{
    QWidget& fenetre = Ouvre();
    for (const QWidget* controle : Controles(fenetre)) {
        QVERIFY2(DansLOrdreTab(fenetre, *controle), qPrintable(controle->objectName()));
    }
}

void TestAccessibilite::EveryAltLetterIsItsOwn()
{
    QWidget& fenetre = Ouvre();
    QMap<QChar, QString> lettres;
    for (const QWidget* controle : Controles(fenetre)) {
        const QString nom = controle->objectName();
        const QChar lettre = LettreDe(fenetre, *controle);
        if (lettre.isNull()) {
            QVERIFY2(SePasseDeLettre(*controle), qPrintable(nom));
            continue;
        }
        QVERIFY2(!lettres.contains(lettre), qPrintable(lettre + lettres[lettre] + nom));
        lettres[lettre] = nom;
    }
}

void TestAccessibilite::OneButtonIsTheDefault()
{
    QWidget& fenetre = Ouvre();
    int principaux = 0;
    for (QWidget* controle : Controles(fenetre)) {
        const auto* bouton = qobject_cast<QPushButton*>(controle);
        const bool principal = bouton && bouton->property("genre").toString() == QLatin1String("principal");
        principaux += principal;
        QVERIFY2(!bouton || bouton->isDefault() == principal, qPrintable(controle->objectName()));
    }
    QCOMPARE(principaux, fenetre.objectName() == QLatin1String("FrmDepart") ? 0 : 1);
}

void TestAccessibilite::EscapeClosesWhereACancelStands()
{
    QWidget& fenetre = Ouvre();
    QTest::keyClick(&fenetre, Qt::Key_Escape);
    QCOMPARE(fenetre.isVisible(), !qobject_cast<QDialog*>(&fenetre));
}

void TestAccessibilite::NothingIsCutOrOverlapsOnASmallScreen()
{
    QWidget& fenetre = Ouvre();
    const QSize moindre = fenetre.minimumSizeHint();
    QVERIFY2(moindre.width() <= 1366 && moindre.height() <= 700,
             qPrintable(QString::number(moindre.height())));
    const QList<QWidget*> controles = Controles(fenetre);
    QCOMPARE(Coupe(fenetre, controles), QString());
    QCOMPARE(Chevauchement(fenetre, controles), QString());
    support::Capture(fenetre, QString::fromUtf8(QTest::currentDataTag()));
}

int main(int nombre, char** arguments)
{
    return support::LanceTest<TestAccessibilite>(nombre, arguments);
}

#include "test_accessibilite.moc"
