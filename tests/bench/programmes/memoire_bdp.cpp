// Prints how much the process grew, in kilobytes, by the library of the open bank: started, and asked a lot.
// usage: mesure_memoire_bdp LIBRARY BANK
#include "drugbank/RequetesBanque.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibrary>

#include <cstdio>

namespace {

qint64 Kilooctets()
{
    QFile statut(QStringLiteral("/proc/self/status"));
    if (statut.open(QIODevice::ReadOnly)) {
        for (const QByteArray& ligne : statut.readAll().split('\n')) {
            if (ligne.startsWith("VmRSS:")) {
                return ligne.mid(6).trimmed().split(' ').first().toLongLong();
            }
        }
    }
    return 0;
}

void DemandeBeaucoup(drugbank::RequetesBanque& requetes)
{
    QList<qint32> produits;
    for (char16_t a = u'a'; a <= u'z'; ++a) {
        for (char16_t b = u'a'; b <= u'z'; ++b) {
            for (const drugbank::Pack& pack : requetes.RecherchePacks(QString(QChar(a)) + QChar(b), 255)) {
                if (produits.size() < 20 && !produits.contains(pack.Produit)) {
                    produits.append(pack.Produit);
                    requetes.Monographie(pack.Id);
                    requetes.Generiques(pack.Produit);
                }
            }
        }
    }
    requetes.Interactions(produits, 0);
}

} // namespace

int main(int nombre, char** arguments)
{
    const QCoreApplication application(nombre, arguments);
    if (nombre < 3) {
        return 2;
    }
    const QString chemin = QString::fromLocal8Bit(arguments[1]);
    const qint64 avant = Kilooctets();
    QLibrary bibliotheque(chemin);
    reinterpret_cast<void (*)(const char*)>(bibliotheque.resolve("BanquePublique_choisitFichier"))(
        arguments[2]);
    const auto banque = std::make_shared<drugbank::LiaisonBanque>(chemin);
    qint32 session = 0;
    if (banque->VidalAPI_init(&session, 3) != 0) {
        return 1;
    }
    const qint64 demarree = Kilooctets() - avant;
    drugbank::RequetesBanque requetes(banque, session);
    DemandeBeaucoup(requetes);
    const qint64 employee = Kilooctets() - avant;
    banque->VidalAPI_release(session);
    std::printf("%lld %lld\n", static_cast<long long>(demarree), static_cast<long long>(employee));
    return 0;
}
