#include "outside/windows/HorlogeSysteme.h"

#include <QTest>
#include <memory>

class TestHorlogeSysteme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CeQuiAttendSeFaitDansSonOrdre();
    void RienNeSeFaitSansSonContexte();
};

void TestHorlogeSysteme::CeQuiAttendSeFaitDansSonOrdre()
{
    outside::HorlogeSysteme horloge;
    QString ordre;
    horloge.Dans(40, this, [&] { ordre += u'2'; });
    horloge.Dans(0, this, [&] { ordre += u'1'; });
    QVERIFY(ordre.isEmpty());
    QTRY_COMPARE(ordre, QStringLiteral("12"));
}

void TestHorlogeSysteme::RienNeSeFaitSansSonContexte()
{
    outside::HorlogeSysteme horloge;
    auto contexte = std::make_unique<QObject>();
    bool fait = false;
    bool apres = false;
    horloge.Dans(10, contexte.get(), [&] { fait = true; });
    contexte.reset();
    horloge.Dans(60, this, [&] { apres = true; });
    QTRY_VERIFY(apres);
    QVERIFY(!fait);
}

QTEST_MAIN(TestHorlogeSysteme)
#include "test_horloge_systeme.moc"
