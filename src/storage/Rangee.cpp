#include "storage/Rangee.h"

#include <QSqlQuery>
#include <QVariant>

namespace storage {

bool Rangee::EstNull(int position) const
{
    return requete_.isNull(position);
}

QString Rangee::Texte(int position) const
{
    return requete_.value(position).toString();
}

qint64 Rangee::Entier(int position) const
{
    return requete_.value(position).toLongLong();
}

double Rangee::Reel(int position) const
{
    return requete_.value(position).toDouble();
}

} // namespace storage
