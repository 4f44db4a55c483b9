#include "backup/VerrouArbre.h"

#include "backup/messages.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"

namespace backup {

VerrouArbre::VerrouArbre(const QString& dossier)
    : dossier_(dossier), verrou_(common::Joint(dossier, QStringLiteral("Remise.lock")))
{
    constexpr int kPerime = 3'600'000; // of another station that is heard of no more
    verrou_.setStaleLockTime(kPerime);
    // What else ails the directory, the first file will tell.
    pris_ = !verrou_.tryLock(0) && verrou_.error() == QLockFile::LockFailedError;
}

void VerrouArbre::Exige() const
{
    if (pris_) {
        throw common::Erreur(messages::ArbreOccupe(dossier_), common::CheminAffiche(dossier_));
    }
}

} // namespace backup
