#include "drugbank/MiseAJourBanque.h"

#include "common/Fichiers.h"
#include "drugbank/BanquePublique.h"
#include "drugbank/ProgresBanque.h"
#include "drugbank/messagesMaj.h"

#include <QLocale>
#include <QScopeGuard>
#include <QThread>

namespace drugbank {

namespace {

QString Compte(qint64 nombre)
{
    return QLocale(QLocale::French).toString(nombre);
}

QString Mots(const QString& fichier, qint64 faites, qint64 total)
{
    return total > 0 ? messages::MajAvance(fichier, Compte(faites), Compte(total))
                     : messages::MajAvanceFichier(fichier);
}

int LignesRefusees(const banque::Bilan& bilan)
{
    int refusees = 0;
    for (const banque::BilanFichier& fichier : bilan.Fichiers) {
        refusees += fichier.Refusees;
    }
    return refusees;
}

ResultatMaj Reussite(const banque::Bilan& bilan)
{
    const QString jour = JourAffiche(QDate::fromString(bilan.DateDonnees, Qt::ISODate));
    const QString texte = banque::TexteBilan(bilan);
    if (bilan.AUnRefus()) {
        return {banque::Fin::AvecRefus, messages::MajAvecRefus(jour, LignesRefusees(bilan)), texte};
    }
    return {banque::Fin::Importee, messages::MajTerminee(jour), texte};
}

} // namespace

MiseAJourBanque::MiseAJourBanque(banque::Demande demande, std::function<void()> libere)
    : demande_(std::move(demande)), libere_(std::move(libere))
{}

MiseAJourBanque::~MiseAJourBanque()
{
    Annule();
    if (fil_) {
        fil_->wait();
    }
}

void MiseAJourBanque::Lance()
{
    fil_.reset(QThread::create([this, demande = demande_] {
        const ResultatMaj resultat = Importe(demande);
        QMetaObject::invokeMethod(this, [this, resultat] { Termine(resultat); });
    }));
    fil_->start();
}

void MiseAJourBanque::Annule()
{
    annulee_ = true;
    liberee_.release();
}

/// Runs on the other thread.
ResultatMaj MiseAJourBanque::Importe(banque::Demande demande)
{
    ProgresBanque progres(demande.Dossier, demande.Interactions);
    demande.AvantRemplacement = [this] { AttendLaLiberation(); };
    const auto avancement = [&](const QString& fichier, qint64 faites, qint64 total) {
        return Suit(fichier, faites, total, progres.Prend(fichier, faites, total));
    };
    try {
        return Reussite(banque::Importe(demande, avancement));
    } catch (const banque::Interruption&) {
        return {banque::Fin::Interrompue, messages::MajAnnulee(), {}};
    } catch (const common::Erreur& erreur) {
        return {banque::Fin::Echec, messages::MajEchouee(erreur.Phrase()), {}};
    } catch (const std::exception& erreur) {
        const QString cause = messages::MajErreurInterne(QString::fromLocal8Bit(erreur.what()));
        return {banque::Fin::Echec, messages::MajEchouee(cause), {}};
    }
}

bool MiseAJourBanque::Suit(const QString& fichier, qint64 faites, qint64 total, int part)
{
    const QString mots = Mots(fichier, faites, total);
    QMetaObject::invokeMethod(this, [this, part, mots] { Q_EMIT Avance(part, mots); });
    return !annulee_;
}

/// The program's thread closes the session when its events come round, unless the update is given up there
/// first.
void MiseAJourBanque::AttendLaLiberation()
{
    QMetaObject::invokeMethod(this, [this] {
        const auto suite = qScopeGuard([this] { liberee_.release(); });
        if (!annulee_) {
            libere_();
        }
    });
    liberee_.acquire();
    if (annulee_) {
        throw banque::Interruption(messages::MajAnnulee(), common::CheminAffiche(demande_.Vers));
    }
}

void MiseAJourBanque::Termine(const ResultatMaj& resultat)
{
    fil_->wait();
    fil_.reset();
    resultat_ = resultat;
    Q_EMIT Finie();
}

} // namespace drugbank
