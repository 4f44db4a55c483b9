#include "storage/Base.h"

#include "storage/Pannes.h"
#include "storage/messages.h"

#include <QSqlQuery>

namespace storage {

Transaction::Transaction(Base& base) : base_(base)
{
    if (base_.profondeur_ == 0) {
        // Taking the lock now: two stations that read first and write later would block each other.
        base_.Execute(QStringLiteral("begin immediate"));
        base_.condamnee_ = false;
    }
    ++base_.profondeur_;
}

Transaction::~Transaction()
{
    --base_.profondeur_;
    if (valide_) {
        return;
    }
    base_.condamnee_ = true;
    if (base_.profondeur_ == 0) {
        // The engine may have rolled back by itself, and then refuses; the hook has no say here.
        QSqlQuery(base_.base_).exec(QStringLiteral("rollback"));
    }
}

void Transaction::Valide()
{
    if (base_.condamnee_) {
        throw Panne(messages::InstructionRefusee, base_.Chemin());
    }
    if (base_.profondeur_ == 1) {
        base_.Execute(QStringLiteral("commit"));
    }
    valide_ = true;
}

} // namespace storage
