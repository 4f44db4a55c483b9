#include "common/Capitales.h"

#include <QTest>

class TestCapitales : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ATextInCapitals_data()
    {
        QTest::addColumn<QString>("texte");
        QTest::addColumn<QString>("attendu");
        const auto rang = [](const char* nom, const char16_t* texte, const char16_t* attendu) {
            QTest::newRow(nom) << QString::fromUtf16(texte) << QString::fromUtf16(attendu);
        };
        rang("accents", u"crème à l'œil, ÿ", u"CRÈME À L'ŒIL, Ÿ");
        rang("micrograms", u"lévothyrox 25 \u00b5g", u"LÉVOTHYROX 25 \u00b5G");
        rang("micrograms in Greek", u"25 \u03bcg", u"25 \u03bcG");
        rang("milligrams", u"25 mg", u"25 MG");
        rang("one letter for one", u"straße", u"STRAßE");
        rang("other alphabets", u"中文 Жук 💊", u"中文 ЖУК 💊");
        rang("empty", u"", u"");
    }
    void ATextInCapitals()
    {
        QFETCH(const QString, texte);
        QTEST(common::EnCapitales(texte), "attendu");
    }
};

QTEST_GUILESS_MAIN(TestCapitales)
#include "test_capitales.moc"
