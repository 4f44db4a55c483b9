#include "certificates/Texte.h"
#include "prescription/Commandes.h"
#include "prescription/Editeur.h"
#include "prescription/Impression.h"
#include "prescription/messages.h"
#include "support/Cabinet.h"
#include "support/PageDeTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace prescription;

namespace {

QString InviteHauteur()
{
    return u"Pour personnaliser la hauteur du saut de ligne, déterminez sa\nHauteur en mm : "_s;
}

QString Pied()
{
    return u"Membre d'une association agréée. Règlement des honoraires par chèque accepté."_s;
}

/// What is printed of the document itself, without letterhead and footer.
QStringList Corps(const page::Dessin& dessin)
{
    page::Dessin corps;
    corps.Items = dessin.Items.sliced(dessin.DebutCorps, dessin.FinCorps - dessin.DebutCorps);
    return support::Mots(corps);
}

} // namespace

/// A certificate on the preview and on paper.
class TestPageCertificat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void repeintMontreLeCertificat();
    void sansTexteLApercuDUnCertificatEstVide_data();
    void sansTexteLApercuDUnCertificatEstVide();
    void auRetourDuCertificatLApercuEstVide();
    void laHauteurRepeintLeCertificat();
    void ACertificateTakesOneSheetAndNoJournal();
    void ACertificateWithThePatientsIdentity();
    void TheFirstCertificateIsAbandonedOnce();
    void WithoutItsTextNoCertificateIsPrinted();
    void LostLinesOfACertificateAreAskedFor();
    void APreviewOfLostLinesIsMarked();
};

void TestPageCertificat::repeintMontreLeCertificat()
{
    Cabinet cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    cabinet.PoseCertificat(u"Certificat pour <N>\r\n"_s);
    Repeint(cabinet.Contexte);
    QCOMPARE(support::Mots(cabinet.Etat.Apercu.PctOrdo),
             (QStringList{u"Certificat"_s, u"pour"_s, u"Monsieur  MARTIN  Paul"_s, Pied()}));
    cabinet.Etat.Certificat.IdentiteCertif = 1;
    Repeint(cabinet.Contexte);
    QCOMPARE(support::Mots(cabinet.Etat.Apercu.PctOrdo).count(u"Monsieur  MARTIN  Paul"_s), 2);
}

void TestPageCertificat::sansTexteLApercuDUnCertificatEstVide_data()
{
    QTest::addColumn<bool>("dossier");
    QTest::newRow("missing") << false;
    QTest::newRow("unreadable") << true;
}

void TestPageCertificat::sansTexteLApercuDUnCertificatEstVide()
{
    QFETCH(bool, dossier);
    Cabinet cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    Repeint(cabinet.Contexte);
    cabinet.Etat.Apercu.ModeApercu = 1;
    if (dossier) {
        common::CreeDossier(certificates::CheminTmp(cabinet.Etat.Chemins.CheminTravail));
    }
    Repeint(cabinet.Contexte);
    QVERIFY(cabinet.Etat.Apercu.PctOrdo.Items.isEmpty());
}

void TestPageCertificat::auRetourDuCertificatLApercuEstVide()
{
    Cabinet cabinet;
    cabinet.PoseCertificat(u"texte"_s);
    cabinet.Etat.Apercu.ModeApercu = 2;
    Repeint(cabinet.Contexte);
    QVERIFY(cabinet.Etat.Apercu.PctOrdo.Items.isEmpty());
}

void TestPageCertificat::laHauteurRepeintLeCertificat()
{
    Cabinet cabinet;
    cabinet.PoseCertificat(u"un\r\ndeux"_s);
    cabinet.Boites.AttendSaisie(InviteHauteur(), u"4,5"_s, u"0"_s);
    FixeHauteurPersonnelle(cabinet.Contexte);
    QCOMPARE(support::Mots(cabinet.Etat.Apercu.PctOrdo).first(2), (QStringList{u"un"_s, u"deux"_s}));
}

void TestPageCertificat::ACertificateTakesOneSheetAndNoJournal()
{
    Cabinet cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    cabinet.PoseCertificat(u"Certificat du <DJ>"_s);
    cabinet.Etat.Ordonnance.ChkTri = 1;
    cabinet.Etat.Reglages.Options.TenirJournal = 1;
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    const QList<page::Dessin>& pages = cabinet.Imprimantes.Travaux.constFirst().Travail.Pages;
    QCOMPARE(pages.size(), 1);
    QCOMPARE(Corps(pages.constFirst()), (QStringList{u"Certificat"_s, u"du"_s, u"20/11/2026"_s}));
    QVERIFY(!common::FichierExiste(
        common::Joint(cabinet.Etat.Chemins.CheminMedecin, u"Journal_Docteur NEIBRE.log"_s)));
}

void TestPageCertificat::ACertificateWithThePatientsIdentity()
{
    Cabinet cabinet;
    cabinet.PoseCertificat(u"texte"_s);
    cabinet.Etat.Certificat.IdentiteCertif = 1;
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    const QStringList textes =
        support::Mots(cabinet.Imprimantes.Travaux.constFirst().Travail.Pages.constFirst());
    QCOMPARE(textes.count(u"Monsieur  MARTIN  Paul"_s), 1);
    QVERIFY(textes.indexOf(u"texte"_s) > textes.indexOf(u"Monsieur  MARTIN  Paul"_s));
}

void TestPageCertificat::TheFirstCertificateIsAbandonedOnce()
{
    Cabinet cabinet;
    cabinet.PoseCertificat(u"texte"_s);
    cabinet.Etat.Impression.EtatImprimante = 1;
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(cabinet.Imprimantes.Abandons.size(), 1);
    QCOMPARE(cabinet.Imprimantes.Travaux.size(), 1);
    QCOMPARE(Corps(cabinet.Imprimantes.Travaux.constFirst().Travail.Pages.constFirst()),
             QStringList{u"texte"_s});
}

void TestPageCertificat::WithoutItsTextNoCertificateIsPrinted()
{
    Cabinet cabinet;
    cabinet.Etat.Apercu.ModeApercu = 1;
    cabinet.Boites.AttendStop(messages::CertificatIllisible());
    QVERIFY(!ImprimeDocument(cabinet.Contexte));
    QVERIFY(cabinet.Imprimantes.Travaux.isEmpty());
}

void TestPageCertificat::LostLinesOfACertificateAreAskedFor()
{
    Cabinet cabinet;
    cabinet.PoseCertificat(u"ligne\r\n"_s.repeated(60));
    cabinet.Boites.AttendContenant(outside::Genre::Question, u"lignes du certificat"_s, outside::Bouton::Non);
    QVERIFY(!ImprimeDocument(cabinet.Contexte));
    QVERIFY(cabinet.Imprimantes.Travaux.isEmpty());
}

void TestPageCertificat::APreviewOfLostLinesIsMarked()
{
    Cabinet cabinet;
    cabinet.PoseCertificat(u"ligne\r\n"_s.repeated(19));
    cabinet.Etat.Certificat.IdentiteCertif = 1;
    Repeint(cabinet.Contexte);
    QCOMPARE(BasDeLaFeuille(cabinet.Contexte), 0.0);
    cabinet.PoseCertificat(u"ligne\r\n"_s.repeated(30));
    Repeint(cabinet.Contexte);
    QCOMPARE(BasDeLaFeuille(cabinet.Contexte), 241.0);
}

QTEST_MAIN(TestPageCertificat)
#include "test_page_certificat.moc"
