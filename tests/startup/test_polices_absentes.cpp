#include "page/Remplacement.h"
#include "settings/FichiersReglages.h"
#include "startup/GestionMedecins.h"
#include "startup/PolicesAbsentes.h"
#include "startup/messages.h"
#include "storage/Jeu.h"
#include "support/BaseDeTest.h"
#include "support/Cabinet.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString kInventee = u"Police Inventée 7"_s;

struct Bureau : Cabinet
{
    storage::Base& Ordo() { return Etat.Bases.Ordo(Etat.Chemins.CheminMedecin); }

    /// One more row of the letterhead.
    void AjouteEntete(int ligne, const QVariant& police)
    {
        support::AjouteLigne(Ordo(), u"Entete"_s, {ligne, u"*"_s, police, 10, 0, 0, 0, 0});
    }
    void AttendMessage(const QStringList& polices)
    {
        QStringList lignes;
        for (const QString& police : polices) {
            lignes.append(startup::messages::PoliceRemplacee(police, page::PoliceDeRemplacement(kInventee)));
        }
        Boites.AttendInformation(startup::messages::PolicesAbsentes(lignes.join(u'\n')));
    }
};

} // namespace

class TestPolicesAbsentes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uneInstallationNormaleNeDitRien();
    void chaquePoliceAbsenteEstNommeeUneFois();
    void uneFoisParMedecinEtParSession();
    void ceQuiNeSImprimePasNeComptePas();
};

void TestPolicesAbsentes::uneInstallationNormaleNeDitRien()
{
    Bureau bureau;
    startup::ChangeMedecin(bureau.Contexte, 0);
    QVERIFY(bureau.Boites.Epuise());
    QCOMPARE(startup::PolicesDesDocuments(bureau.Contexte), QStringList{u"Arial"_s});
}

void TestPolicesAbsentes::chaquePoliceAbsenteEstNommeeUneFois()
{
    Bureau bureau;
    bureau.AjouteEntete(3, kInventee);
    bureau.AjouteEntete(22, u"Basse inventée"_s);
    bureau.AjouteEntete(5, u"POLICE INVENTÉE 7"_s);
    support::AjouteLigne(bureau.Ordo(), u"Misenpage"_s, {0, u"Titre inventé"_s, 11, 0, 0, 0});
    support::AjouteLigne(bureau.Ordo(), u"Misenpage"_s, {1, u"Poso inventée"_s, 11, 0, 0, 0});
    support::AjouteLigne(bureau.Ordo(), u"Certificat"_s, {u"Certif inventé"_s, 11, 0, 0, 0});
    settings::Dupli dupli;
    dupli.DupliPolice = u"Copie inventée"_s;
    settings::EcritDupli(dupli, bureau.Etat.Chemins.CheminMedecin);
    bureau.AttendMessage({kInventee, u"Basse inventée"_s, u"Titre inventé"_s, u"Poso inventée"_s,
                          u"Certif inventé"_s, u"Copie inventée"_s});
    startup::ChangeMedecin(bureau.Contexte, 0);
    QVERIFY(bureau.Boites.Epuise());
}

void TestPolicesAbsentes::uneFoisParMedecinEtParSession()
{
    Bureau bureau;
    const QString autre = common::Joint(bureau.Etat.Chemins.CheminTravail, u"DR DURAND"_s);
    common::CopieDossier(bureau.Etat.Chemins.CheminMedecin, autre);
    bureau.Etat.Medecins.Liste.append({u"DR DURAND"_s, 2});
    bureau.AjouteEntete(3, kInventee);
    bureau.AttendMessage({kInventee});
    for (const int rang : {0, 1, 0, 1}) {
        startup::ChangeMedecin(bureau.Contexte, rang);
    }
    QVERIFY(bureau.Boites.Epuise());
}

void TestPolicesAbsentes::ceQuiNeSImprimePasNeComptePas()
{
    Bureau bureau;
    bureau.AjouteEntete(23, kInventee); // the signature's name
    bureau.AjouteEntete(4, QVariant()); // keeps the font of the row before
    settings::Dupli dupli;
    dupli.DupliPolice = kInventee;
    dupli.DupliActif = 0;
    settings::EcritDupli(dupli, bureau.Etat.Chemins.CheminMedecin);
    startup::ChangeMedecin(bureau.Contexte, 0);
    QVERIFY(bureau.Boites.Epuise());
}

QTEST_MAIN(TestPolicesAbsentes)
#include "test_polices_absentes.moc"
