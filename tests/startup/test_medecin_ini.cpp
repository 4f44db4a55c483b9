#include "common/Fichiers.h"
#include "startup/MedecinIni.h"

#include <QTemporaryDir>
#include <QTest>

using namespace startup;

namespace {

QList<Medecin> Lisibles(const ContenuMedecinIni& contenu)
{
    QList<Medecin> liste;
    for (const LigneMedecin& ligne : contenu.Lignes) {
        if (ligne.Lisible()) {
            liste.append(ligne.Lue);
        }
    }
    return liste;
}

QString Ini(const QTemporaryDir& dossier)
{
    return common::Joint(dossier.path(), QStringLiteral("Medecin.ini"));
}

const QList<Medecin> kAucun;

} // namespace

class TestMedecinIni : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lit_data();
    void lit();
    void ecritOctetPourOctet();
    void gardeLesLignesDuFichier();
    void gardeLeFichierAbime();
    void retireUnSeulMedecin();
    void compteLesNumerosDuFichier();
};

void TestMedecinIni::lit_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<int>("nb");
    QTest::addColumn<QList<Medecin>>("medecins");
    QTest::addColumn<bool>("abime");

    const auto ligne = [](const char* nom, const QByteArray& octets, int nb, const QList<Medecin>& medecins,
                          bool abime) { QTest::newRow(nom) << octets << nb << medecins << abime; };
    const Medecin neibre{QStringLiteral("NEIBRE"), 2};
    ligne("forme du fichier", " 3 \r\nNEIBRE-2\r\nDR A-3\r\n", 3, {neibre, {QStringLiteral("DR A"), 3}},
          false);
    ligne("sans blancs", "3\nNEIBRE-2", 3, {neibre}, false);
    ligne("trous", " 9 \r\nNEIBRE-2\r\n", 9, {neibre}, false);
    ligne("ordre du fichier", " 2 \r\nNEIBRE-2\r\nDR A-1\r\n", 2, {neibre, {QStringLiteral("DR A"), 1}},
          false);
    ligne("trait d'union", " 2 \r\nDR MARTIN-DURAND PAUL-2\r\n", 2, {{QStringLiteral("DR MARTIN"), 2}},
          false);
    ligne("accents", " 1 \r\nDR L\xC9ON-1\r\n", 1, {{QStringLiteral("DR LÉON"), 1}}, false);
    ligne("sans médecin", " 4 \r\n", 4, kAucun, false);
    ligne("sans trait", " 3 \r\nDR SANS\r\nNEIBRE-2\r\n", 3, {neibre}, true);
    ligne("sans nombre", " 3 \r\nDR X-deux\r\nNEIBRE-2\r\n", 3, {neibre}, true);
    ligne("hors de l'arbre", " 3 \r\n../X-1\r\nDR ..\\Y-2\r\n", 3, kAucun, true);
    ligne("nom vide", " 3 \r\n-1\r\n", 3, kAucun, true);
    ligne("numéro trop grand", " 3 \r\nDR X-32768\r\n", 3, kAucun, true);
    ligne("première ligne sans nombre", "trois\r\nNEIBRE-2\r\n", 2, {neibre}, true);
    ligne("première ligne trop grande", "99999\r\nNEIBRE-2\r\n", 2, {neibre}, true);
    ligne("vide", "", 0, kAucun, true);
    ligne("nul", QByteArray(" 1 \r\nDR \0X-1\r\n", 14), 1, kAucun, true);
    ligne("binaire", QByteArray("\x89PNG\r\n\x1A\n\0\0", 10), 0, kAucun, true);
}

void TestMedecinIni::lit()
{
    QFETCH(QByteArray, octets);
    QFETCH(QList<Medecin>, medecins);
    const ContenuMedecinIni contenu = AnalyseMedecinIni(octets);
    QTEST(int(contenu.NbMedecins), "nb");
    QTEST(contenu.Abime, "abime");
    QCOMPARE(Lisibles(contenu), medecins);
}

void TestMedecinIni::ecritOctetPourOctet()
{
    QCOMPARE(TexteMedecinIni(3, {QStringLiteral("DR LÉON-1"), QStringLiteral("NEIBRE-3")}),
             QByteArray(" 3 \r\nDR L\xC9ON-1\r\nNEIBRE-3\r\n"));
}

void TestMedecinIni::gardeLesLignesDuFichier()
{
    QTemporaryDir dossier;
    common::EcritFichier(Ini(dossier),
                         " 5 \r\nDR MARTIN-DURAND PAUL-2\r\nDR AUTRE POSTE-5\r\nSANS TRAIT\r\n");
    Medecins medecins;
    medecins.NbMedecins = 6;
    medecins.Liste = {{QStringLiteral("DR MARTIN"), 2}, {QStringLiteral("DR NEUF"), 6}};
    EcritListeMedecins(dossier.path(), medecins);
    QCOMPARE(common::LitFichier(Ini(dossier)),
             QByteArray(" 6 \r\nDR MARTIN-DURAND PAUL-2\r\nDR NEUF-6\r\nDR AUTRE POSTE-5\r\nSANS TRAIT\r\n"));
}

void TestMedecinIni::gardeLeFichierAbime()
{
    QTemporaryDir dossier;
    const QByteArray abime(" 1 \r\nDR X-1\r\n\0\x01\r\n", 17);
    common::EcritFichier(Ini(dossier), abime);
    Medecins medecins;
    medecins.NbMedecins = 2;
    medecins.Liste = {{QStringLiteral("DR X"), 1}, {QStringLiteral("DR Y"), 2}};
    EcritListeMedecins(dossier.path(), medecins);
    QCOMPARE(common::LitFichier(Ini(dossier) + QStringLiteral(".abime")), abime);
    QCOMPARE(common::LitFichier(Ini(dossier)), QByteArray(" 2 \r\nDR X-1\r\nDR Y-2\r\n"));
}

void TestMedecinIni::retireUnSeulMedecin()
{
    QTemporaryDir dossier;
    common::EcritFichier(Ini(dossier), " 3 \r\nDR A-1\r\nDR B-2\r\nDR AUTRE POSTE-2\r\nDR C-3\r\n");
    RetireDeMedecinIni(dossier.path(), {QStringLiteral("DR B"), 2});
    QCOMPARE(common::LitFichier(Ini(dossier)), QByteArray(" 3 \r\nDR A-1\r\nDR AUTRE POSTE-2\r\nDR C-3\r\n"));
}

void TestMedecinIni::compteLesNumerosDuFichier()
{
    QTemporaryDir dossier;
    Medecins medecins;
    medecins.NbMedecins = 2;
    QCOMPARE(DernierNumero(dossier.path(), medecins), 2);
    common::EcritFichier(Ini(dossier), " 4 \r\nDR A-1\r\n");
    QCOMPARE(DernierNumero(dossier.path(), medecins), 4);
    common::EcritFichier(Ini(dossier), " 1 \r\nDR A-7\r\n");
    QCOMPARE(DernierNumero(dossier.path(), medecins), 7);
}

QTEST_APPLESS_MAIN(TestMedecinIni)
#include "test_medecin_ini.moc"
