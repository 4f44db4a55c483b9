#include "support/PageDeTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using page::Cible;
using page::MesureLargeur;
using support::Mots;
using support::PageDeTest;
using support::Trouve;

namespace {

const page::Police kPetite{.Taille = 8};

PageDeTest& AvecNombre(PageDeTest& page)
{
    page.Reglages.Options.TotalMedicaments = 1;
    page.Ordonnance.NbMedZone1 = 3;
    page.Ordonnance.NbMedZone2 = 2;
    page.Ajoute1(u"A"_s, u"poso"_s);
    return page;
}

QList<page::ItemCadre> Cadres(const page::Dessin& dessin)
{
    QList<page::ItemCadre> cadres;
    for (const page::Item& item : dessin.Items) {
        if (const auto* cadre = std::get_if<page::ItemCadre>(&item)) {
            cadres.append(*cadre);
        }
    }
    return cadres;
}

} // namespace

/// The foot of the page: count box, footer, journal line, lost lines.
class TestPied : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leNombreEtSonCadre();
    void leNombreEnA5();
    void sansNombre_data();
    void sansNombre();
    void leNumeroPeutPasserLeNombre();
    void leBasDePage();
    void leDernierRangDuBasDePage();
    void leBasDePageEnA5();
    void sansDossierDeTravailPasDeBasDePage();
    void unEnteteTropCourtNArretePasLaPeinture();
    void uneSurfaceBasseNAPasDeBasDePage();
    void unCertificatNAQueLePied();
    void laLigneDuJournal();
    void laLigneDuJournalSansTitre();
    void laLigneDuJournalDUnCertificat();
    void lesLignesPerdues();
    void lesLignesPerduesEnA5();
    void unMotParLigneCompteUneLigne();
    void lEnteteNEstPasPerdu();
};

void TestPied::leNombreEtSonCadre()
{
    PageDeTest page;
    const page::Dessin dessin = AvecNombre(page).PeintCorps();
    const page::ItemTexte texte = Trouve(dessin, u"Nombre de médicaments prescrits :   "_s);
    const page::ItemTexte nombre = Trouve(dessin, u" 5 "_s);
    const double gauche =
        20 + 210 - 20 - MesureLargeur(u"Nombre de médicaments prescrits : xxxxxxxx"_s, kPetite) - 10;
    QCOMPARE(texte.Police, kPetite);
    QCOMPARE(texte.X, gauche);
    QCOMPARE(texte.Y, 4.0 + 297 - 10 - 10);
    QCOMPARE(nombre.X, gauche + texte.Largeur);
    const double fin = nombre.X + nombre.Largeur;
    const auto cadres = Cadres(dessin);
    QCOMPARE(cadres.size(), 1);
    QCOMPARE(cadres[0].X, fin - MesureLargeur(u"5"_s, kPetite) - 2);
    QCOMPARE(cadres[0].X2, fin + 1);
    QCOMPARE(cadres[0].Y, 281.0);
    QCOMPARE(cadres[0].Y2, 285.0);
    QCOMPARE(cadres[0].Epaisseur, 2);
    QVERIFY(cadres[0].X < nombre.X + MesureLargeur(u" "_s, kPetite)); // the digits stand inside
}

void TestPied::leNombreEnA5()
{
    PageDeTest page;
    page.Reglages.Options.FormatA4 = 0;
    const page::ItemTexte texte =
        Trouve(AvecNombre(page).PeintCorps(), u"Nombre de médicaments prescrits :   "_s);
    QCOMPARE(texte.X, 148 - MesureLargeur(u"Nombre de médicaments prescrits : xxxxxxxx"_s, kPetite) - 10);
    QCOMPARE(texte.Y, 4.0 + 210 - 10 - 10);
}

void TestPied::sansNombre_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("nombre");
    QTest::newRow("option à non") << 0 << 3;
    QTest::newRow("aucun compté") << 1 << 0;
}

void TestPied::sansNombre()
{
    QFETCH(int, total);
    QFETCH(int, nombre);
    PageDeTest page;
    page.Reglages.Options.TotalMedicaments = static_cast<quint8>(total);
    page.Ordonnance.NbMedZone1 = static_cast<quint8>(nombre);
    page.Ajoute1(u"A"_s);
    QCOMPARE(Mots(page.PeintCorps()), QStringList{u"A"_s});
    QVERIFY(Cadres(page.PeintCorps()).isEmpty());
}

// The number counts what is painted, the box what the picker counted last.
void TestPied::leNumeroPeutPasserLeNombre()
{
    PageDeTest page;
    page.Reglages.Options.IncrementeMedicaments = page.Reglages.Options.TotalMedicaments = 1;
    page.Ordonnance.NbMedZone1 = 1;
    page.Ajoute1(u"UN"_s);
    page.Ajoute1(u"DEUX"_s);
    const page::Dessin dessin = page.PeintCorps();
    QVERIFY(Mots(dessin).contains(u"2- "_s));
    QVERIFY(Mots(dessin).contains(u" 1 "_s));
}

void TestPied::leBasDePage()
{
    PageDeTest page;
    const page::Police police{.Nom = u"Times New Roman"_s, .Taille = 7, .Italique = true};
    page.PoseEntete({{.NumLigne = 22, .Texte = u"Membre\r\nRèglement"_s, .Police = police}});
    page.Reglages.Look.CouleurEntete = page::Rvb(10, 20, 30);
    for (const Cible cible : {Cible::Imprimante, Cible::Apercu}) {
        const page::Dessin dessin = page.PeintCorps(cible);
        const page::ItemTexte bas = Trouve(dessin, u"Membre"_s);
        QCOMPARE(QPointF(bas.X, bas.Y), QPointF(20, 291));
        QCOMPARE(bas.Police, police);
        QCOMPARE(bas.Encre, page::Rvb(10, 20, 30));
        QCOMPARE(Trouve(dessin, u"Règlement"_s).X, 20.0);
    }
}

void TestPied::leDernierRangDuBasDePage()
{
    PageDeTest page;
    page.Entete = {{.NumLigne = 22, .Texte = u"ancien"_s, .Police = {}},
                   {.NumLigne = 22, .Texte = u"nouveau"_s, .Police = {}},
                   {.NumLigne = 23, .Texte = u"signature"_s, .Police = {}},
                   {.NumLigne = 23, .Texte = u"signature"_s, .Police = {}}};
    QCOMPARE(Mots(page.PeintCorps()), QStringList{u"nouveau"_s});
}

void TestPied::leBasDePageEnA5()
{
    PageDeTest page;
    page.Reglages.Options.FormatA4 = 0;
    page.Reglages.Marges.MargeBasEntete = 15;
    page.PoseEntete({{.NumLigne = 22, .Texte = u"Membre"_s, .Police = {}}});
    QCOMPARE(Trouve(page.PeintCorps(), u"Membre"_s).Y, 199.0);
}

void TestPied::sansDossierDeTravailPasDeBasDePage()
{
    PageDeTest page;
    page.AvecTravail = false;
    page.PoseEntete({{.NumLigne = 22, .Texte = u"Membre"_s, .Police = {}}});
    QVERIFY(page.PeintCorps().Items.isEmpty());
    QVERIFY(!page.Ordonnance.LigneJournal.isEmpty());
}

void TestPied::unEnteteTropCourtNArretePasLaPeinture()
{
    PageDeTest page;
    page.Ajoute1(u"A"_s);
    page.Entete = {{.NumLigne = 0, .Texte = u"seul"_s, .Police = {}}};
    QCOMPARE(Mots(page.PeintCorps()), QStringList{u"A"_s});
    QCOMPARE(page.Ordonnance.LigneJournal, u"20/11/2026*MARTIN  Paul*20/03/1953*A"_s);
}

void TestPied::uneSurfaceBasseNAPasDeBasDePage()
{
    PageDeTest page;
    page.PoseEntete({{.NumLigne = 22, .Texte = u"Membre"_s, .Police = {}}});
    page::Surface basse(Cible::Apercu, 210, 200);
    page::Modele modele = page.Modele();
    page::PeintOrdo(basse, modele);
    QVERIFY(basse.Resultat().Items.isEmpty());
}

void TestPied::unCertificatNAQueLePied()
{
    PageDeTest page;
    page.ModeApercu = 1;
    AvecNombre(page).PoseEntete({{.NumLigne = 22, .Texte = u"Membre"_s, .Police = {}}});
    QCOMPARE(Mots(page.PeintCorps()), QStringList{u"Membre"_s});
}

void TestPied::laLigneDuJournal()
{
    PageDeTest page;
    page.Ordonnance.ChkALD = 1;
    page.Ajoute1(u"DOLIPRANE 1 000 mg"_s, u"ne s'inscrit pas"_s);
    page.Ajoute1(QString(), u"sans titre"_s);
    page.Ajoute2(u"#QSP 3 mois#"_s);
    page.PeintCorps(Cible::Apercu);
    QCOMPARE(page.Ordonnance.LigneJournal,
             u"20/11/2026*MARTIN  Paul*20/03/1953*DOLIPRANE1000mg*#QSP3mois#"_s);
    page.PeintCorps(); // rebuilt, not added to
    QCOMPARE(page.Ordonnance.LigneJournal,
             u"20/11/2026*MARTIN  Paul*20/03/1953*DOLIPRANE1000mg*#QSP3mois#"_s);
}

void TestPied::laLigneDuJournalSansTitre()
{
    PageDeTest page;
    page.PeintCorps();
    QCOMPARE(page.Ordonnance.LigneJournal, u"20/11/2026*MARTIN  Paul*20/03/1953"_s);
}

void TestPied::laLigneDuJournalDUnCertificat()
{
    PageDeTest page;
    page.Ajoute1(u"DOLIPRANE"_s);
    page.PeintCorps();
    page.ModeApercu = 1;
    page.PeintCorps();
    QCOMPARE(page.Ordonnance.LigneJournal,
             u"20/11/2026*MARTIN  Paul*20/03/1953*20/11/2026*MARTIN  Paul*20/03/1953*DOLIPRAN"_s);
}

void TestPied::lesLignesPerdues()
{
    PageDeTest page;
    page.Reglages.Options.SautsPrescription = 0;
    const double ligne = page::MesureHauteur({});
    const int tiennent = static_cast<int>((291 - 100) / ligne);
    for (int rang = 0; rang < tiennent; ++rang) {
        page.Ajoute1(QString(), u"une ligne"_s);
    }
    QCOMPARE(page::LignesPerdues(page.PeintCorps(), page.Reglages), 0);
    page.Ajoute1(QString(), u"perdue en trois mots"_s);
    QCOMPARE(page::LignesPerdues(page.PeintCorps(), page.Reglages), 1);
    page.Ajoute1(u"TITRE"_s, u"perdu avec lui"_s);
    QCOMPARE(page::LignesPerdues(page.PeintCorps(), page.Reglages), 3);
    page.Reglages.Marges.MargeBasEntete = -50; // never below the sheet's own end
    QCOMPARE(page::LignesPerdues(page.PeintCorps(), page.Reglages),
             tiennent + 3 - static_cast<int>((297 - 100) / ligne));
}

void TestPied::lesLignesPerduesEnA5()
{
    PageDeTest page;
    page.Reglages.Marges.MargeHauteOrdo = 197;
    page.Ajoute1(u"TITRE"_s, u"sous lui"_s);
    QCOMPARE(page::LignesPerdues(page.PeintCorps(), page.Reglages), 0);
    page.Reglages.Options.FormatA4 = 0;
    QCOMPARE(page::LignesPerdues(page.PeintCorps(), page.Reglages), 1);
}

void TestPied::unMotParLigneCompteUneLigne()
{
    PageDeTest page;
    page.Reglages.Marges.MargeHauteOrdo = 300;
    page.Ajoute1(u"TITRE"_s, u"un* deux trois$ quatre"_s);
    QCOMPARE(page::LignesPerdues(page.PeintCorps(), page.Reglages), 2);
}

void TestPied::lEnteteNEstPasPerdu()
{
    PageDeTest page;
    page.Reglages.Marges.MargeHautePatient = 295;
    AvecNombre(page).PoseEntete({{.NumLigne = 22, .Texte = u"Membre\r\nencore"_s, .Police = {}}});
    QCOMPARE(page::LignesPerdues(page.PeintFeuille(), page.Reglages), 0);
}

QTEST_MAIN(TestPied)
#include "test_pied.moc"
