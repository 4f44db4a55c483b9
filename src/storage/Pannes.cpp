#include "storage/Pannes.h"

#include "common/Fichiers.h"
#include "storage/messages.h"

#include <QFileInfo>
#include <QSqlError>

namespace storage {

namespace {

using Message = QString (*)(const QString& nom);

/// The engine's primary result codes, as its documentation numbers them.
Message MessageDuCode(int code)
{
    switch (code) {
    case 5: // busy
    case 6: // locked
        return messages::BaseVerrouillee;
    case 8:  // read-only
    case 14: // the journal beside an open file cannot be made
        return messages::LectureSeule;
    case 10: // disk error
        return messages::DisqueEnPanne;
    case 11: // corrupt
    case 26: // not a database
        return messages::BaseEndommagee;
    case 13: // full
        return messages::DisquePlein;
    case 19: // constraint: the only one that our tables have is the autonumber
        return messages::CleOccupee;
    default:
        return messages::InstructionRefusee;
    }
}

} // namespace

common::Erreur Panne(const QSqlError& erreur, const QString& chemin)
{
    constexpr int kCodePrimaire = 0xFF;
    const int code = erreur.nativeErrorCode().toInt() & kCodePrimaire;
    return Panne(MessageDuCode(code), chemin);
}

common::Erreur Panne(Message message, const QString& chemin)
{
    return common::Erreur(message(QFileInfo(chemin).fileName()), common::CheminAffiche(chemin));
}

} // namespace storage
