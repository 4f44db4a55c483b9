#include "outside/windows/ImprimantesQt.h"

#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "support/Monde.h"

#include <QApplication>
#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Bureau : support::Monde
{
    outside::ImprimantesQt Systeme{Horloge, Lanceur, Boites};
};

} // namespace

class TestImprimantesQt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ThePdfFileIsAlwaysThere()
    {
        const Bureau bureau;
        QCOMPARE(bureau.Systeme.Noms().constLast(), outside::NomFichierPdf());
        QVERIFY(bureau.Systeme.Noms().contains(bureau.Systeme.ParDefaut()));
    }

    void AnAbsentPrinterIsNamed()
    {
        Bureau bureau;
        try {
            bureau.Systeme.Imprime(u"Laser du couloir"_s, {});
            QFAIL("printed on nothing");
        } catch (const common::Erreur& erreur) {
            QVERIFY(erreur.Phrase().contains(u"« Laser du couloir »"_s));
        }
    }

    void ThePdfFileIsWrittenAndOpened()
    {
        Bureau bureau;
        const QString dossier = bureau.Chemin(u"PDF"_s);
        common::CreeDossier(dossier);
        bureau.Systeme.Imprime(outside::NomFichierPdf(), {u"MARTIN Paul"_s, {page::Dessin()}, dossier});
        const QStringList fichiers = QDir(dossier).entryList(QDir::Files);
        QCOMPARE(fichiers.size(), 1);
        QVERIFY(fichiers.constFirst().endsWith(u" MARTIN Paul.pdf"_s));
        QCOMPARE(bureau.Lanceur.Documents, QStringList{common::Joint(dossier, fichiers.constFirst())});
    }
};

QTEST_MAIN(TestImprimantesQt)
#include "test_imprimantes_qt.moc"
