#include "certificates/SuiviMiseEnPage.h"

#include <QTest>
#include <QTextCursor>
#include <QTextDocument>

using namespace certificates;

namespace {

/// A text, what is in force beside it, and the changes that the editor makes to both.
struct Poste
{
    QTextDocument Document;
    MiseEnPage EnForce;
    int Remises = 0;
    SuiviMiseEnPage Suivi{Document, [this] { return EnForce; },
                          [this](const MiseEnPage& note) {
                              EnForce = note;
                              ++Remises;
                          }};

    void Remplace(const QString& texte, const MiseEnPage& avec)
    {
        EnForce = avec;
        Suivi.Change([&] {
            QTextCursor tout(&Document);
            tout.select(QTextCursor::Document);
            tout.insertText(texte);
        });
    }
    void Tape(const QString& texte)
    {
        QTextCursor fin(&Document);
        fin.movePosition(QTextCursor::End);
        fin.insertText(texte);
    }
    QString Etat() const
    {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(Document.toPlainText().replace(u'\n', u'/'))
            .arg(EnForce.DecalageCertif)
            .arg(EnForce.CertifALD)
            .arg(EnForce.Modele);
    }
};

} // namespace

class TestSuiviMiseEnPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheShiftFollowsTheText();
    void TypingBetweenTwoChanges();
    void ANewStepForgetsWhatWasUndone();
    void TheSameNumberOfStepsIsNotTheSameText();
    void ATextSetFromOutside();
};

void TestSuiviMiseEnPage::TheShiftFollowsTheText()
{
    Poste poste;
    poste.Remplace(QStringLiteral("a\nb"), {0, 0, QStringLiteral("Sport")});
    poste.Remplace(QStringLiteral("  a\n  b"), {2, 0, QStringLiteral("Sport")});
    poste.Remplace(QStringLiteral("____"), {0, 1, QStringLiteral("Sport")});
    QCOMPARE(poste.Remises, 0);
    poste.Document.undo();
    QCOMPARE(poste.Etat(), QStringLiteral("  a/  b 2 0 Sport"));
    poste.Document.undo();
    QCOMPARE(poste.Etat(), QStringLiteral("a/b 0 0 Sport"));
    poste.Document.undo();
    QCOMPARE(poste.Etat(), QStringLiteral(" 0 0 "));
    poste.Document.redo();
    poste.Document.redo();
    poste.Document.redo();
    QCOMPARE(poste.Etat(), QStringLiteral("____ 0 1 Sport"));
}

void TestSuiviMiseEnPage::TypingBetweenTwoChanges()
{
    Poste poste;
    poste.Remplace(QStringLiteral("  a"), {2, 0, {}});
    poste.Tape(QStringLiteral("bc"));
    poste.Remplace(QStringLiteral("    abc"), {4, 0, {}});
    poste.Tape(QStringLiteral("d"));
    QCOMPARE(poste.Etat(), QStringLiteral("    abcd 4 0 "));
    poste.Document.undo();
    QCOMPARE(poste.EnForce.DecalageCertif,
             poste.Document.toPlainText().startsWith(QString(4, u' ')) ? 4.0 : 2.0);
    while (poste.Document.toPlainText() != QLatin1String("  a") && poste.Document.isUndoAvailable()) {
        poste.Document.undo();
    }
    while (poste.Document.isRedoAvailable()) {
        poste.Document.redo();
    }
    QCOMPARE(poste.Etat(), QStringLiteral("    abcd 4 0 "));
}

void TestSuiviMiseEnPage::ANewStepForgetsWhatWasUndone()
{
    Poste poste;
    poste.Remplace(QStringLiteral("a"), {0, 0, {}});
    poste.Remplace(QStringLiteral("  a"), {2, 0, {}});
    poste.Document.undo();
    poste.Tape(QStringLiteral("b"));
    poste.Tape(QStringLiteral("\nc"));
    poste.Tape(QStringLiteral("d"));
    QCOMPARE(poste.Etat(), QStringLiteral("ab/cd 0 0 "));
}

void TestSuiviMiseEnPage::TheSameNumberOfStepsIsNotTheSameText()
{
    Poste poste;
    poste.Remplace(QStringLiteral("x"), {2, 1, {}}); // one step
    poste.Document.undo();
    QCOMPARE(poste.Etat(), QStringLiteral(" 0 0 "));
    poste.Tape(QStringLiteral("y")); // one step
    QCOMPARE(poste.Etat(), QStringLiteral("y 0 0 "));
}

void TestSuiviMiseEnPage::ATextSetFromOutside()
{
    Poste poste;
    poste.Remplace(QStringLiteral("a"), {4, 1, {}});
    poste.Document.setPlainText(QStringLiteral("b"));
    QCOMPARE(poste.Etat(), QStringLiteral("b 4 1 "));
    poste.Tape(QStringLiteral("c"));
    poste.Document.undo();
    QCOMPARE(poste.Etat(), QStringLiteral("b 4 1 "));
}

QTEST_GUILESS_MAIN(TestSuiviMiseEnPage)
#include "test_suivi_mise_en_page.moc"
