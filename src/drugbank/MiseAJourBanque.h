#pragma once

#include "bank/LigneDeCommande.h"

#include <QObject>
#include <QSemaphore>
#include <atomic>
#include <memory>

class QThread;

namespace drugbank {

/// What an update came to.
struct ResultatMaj
{
    banque::Fin Fin = banque::Fin::Echec;
    QString Phrase; ///< for the doctor, in a line or two
    QString Bilan;  ///< the summary, empty without an import
};

/// Imports the public files into the bank file on a thread of its own, which reads no state of the program.
/// The file is replaced at one stroke, while the program holds the session closed; whatever goes wrong before
/// leaves the former one. The end of this object interrupts the import and waits for it.
class MiseAJourBanque : public QObject
{
    Q_OBJECT

public:
    /// `libere` is called on this object's thread, right before the bank file is replaced, and not at all
    /// when the import comes to nothing.
    MiseAJourBanque(banque::Demande demande, std::function<void()> libere);
    ~MiseAJourBanque() override;

    /// Once.
    void Lance();
    /// Asks for the end; `Finie` tells when it has come. Too late, the new bank is in place.
    void Annule();
    bool EnCours() const { return fil_ != nullptr; }
    /// What it came to, behind `Finie`.
    const ResultatMaj& Resultat() const { return resultat_; }

Q_SIGNALS:
    /// `part` from 0 to `ProgresBanque::kTotal`; the words name the file.
    void Avance(int part, const QString& texte);
    void Finie();

private:
    ResultatMaj Importe(banque::Demande demande);
    bool Suit(const QString& fichier, qint64 faites, qint64 total, int part);
    void AttendLaLiberation();
    void Termine(const ResultatMaj& resultat);

    banque::Demande demande_;
    std::function<void()> libere_;
    std::unique_ptr<QThread> fil_;
    std::atomic<bool> annulee_ = false;
    QSemaphore liberee_; ///< the session is closed, or the update is given up
    ResultatMaj resultat_;
};

} // namespace drugbank
