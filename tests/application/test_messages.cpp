// Every text that the subsystems say, called once, in "messages.txt" of the build directory for review.
#include "common/Fichiers.h"
#include "common/Texte8.h"

#include <InclutMessages.inc>
#include <QRegularExpression>
#include <QTest>

namespace {

/// What stands for a parameter in the list.
template <typename Parametre> std::decay_t<Parametre> Exemple()
{
    if constexpr (std::is_same_v<std::decay_t<Parametre>, QString>) {
        return QStringLiteral("[texte]");
    } else {
        return 3;
    }
}

template <typename... Parametres> QString Texte(QString (*message)(Parametres...))
{
    return message(Exemple<Parametres>()...);
}

struct Message
{
    QString Fichier;
    QString Nom;
    QString Texte;
};

QList<Message> TousLesMessages()
{
    QList<Message> messages;
#define MESSAGE(fichier, espace, nom)                                                                        \
    messages.append({QStringLiteral(fichier), QStringLiteral(#nom), Texte(espace::nom)});
#include <ListeMessages.inc>
#undef MESSAGE
    return messages;
}

/// An accented letter that was read in the wrong character set.
bool EstMalDecode(const QString& texte)
{
    static const QRegularExpression traces(
        QStringLiteral("\u00C3[\u0080-\u00BF]|\u00C2[\u0080-\u00BF]|\uFFFD"));
    return texte.contains(traces);
}

} // namespace

class TestMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ecritLaListe();
    void chaqueMessage_data();
    void chaqueMessage();
    void lesAccentsSontLa();
};

void TestMessages::ecritLaListe()
{
    QString texte;
    QString fichier;
    for (const Message& message : TousLesMessages()) {
        if (message.Fichier != fichier) {
            fichier = message.Fichier;
            texte += QStringLiteral("\n==== %1\n").arg(fichier);
        }
        texte += QStringLiteral("\n-- %1\n%2\n").arg(message.Nom, message.Texte);
    }
    const QString liste = common::Joint(QStringLiteral(RACINE_CONSTRUCTION), QStringLiteral("messages.txt"));
    common::EcritFichier(liste, texte.toUtf8());
    QVERIFY(texte.contains(QStringLiteral("==== startup/messages.h")));
    QVERIFY(texte.contains(QStringLiteral("==== storage/messages.h")));
}

void TestMessages::chaqueMessage_data()
{
    QTest::addColumn<QString>("texte");
    for (const Message& message : TousLesMessages()) {
        QTest::addRow("%s %s", qPrintable(message.Fichier), qPrintable(message.Nom)) << message.Texte;
    }
}

void TestMessages::chaqueMessage()
{
    QFETCH(const QString, texte);
    QVERIFY(!texte.trimmed().isEmpty());
    QVERIFY2(texte != QLatin1String("[texte]"), "the message says nothing but what it is given");
    QVERIFY(!texte.startsWith(QLatin1String("TODO")) && !texte.startsWith(QLatin1String("FIXME")));
    QVERIFY2(!EstMalDecode(texte), qPrintable(texte));
    QVERIFY2(common::TientEnWindows1252(texte), qPrintable(texte));
    static const QRegularExpression placeVide(QStringLiteral("%[1-9]"));
    QVERIFY2(!texte.contains(placeVide), qPrintable(texte));
}

void TestMessages::lesAccentsSontLa()
{
    QString tous;
    for (const Message& message : TousLesMessages()) {
        tous += message.Texte;
    }
    for (const QChar accent : QStringLiteral("éèêàù«»")) {
        QVERIFY2(tous.contains(accent), qPrintable(QString(accent)));
    }
}

QTEST_GUILESS_MAIN(TestMessages)
#include "test_messages.moc"
