#include "bank/bibliotheque/Connexion.h"

#include <atomic>

namespace banque::bibliotheque {

namespace {

QString NomNouveau()
{
    static std::atomic<quint64> derniere = 0;
    return QStringLiteral("banque publique %1").arg(++derniere);
}

} // namespace

Connexion::Connexion(const QString& fichier)
    : nom_(NomNouveau()), base_(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), nom_))
{
    base_.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=2000"));
    base_.setDatabaseName(fichier);
    base_.open();
}

Connexion::~Connexion()
{
    base_.close();
    base_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(nom_);
}

} // namespace banque::bibliotheque
