#include "drugbank/NomsExportes.h"

namespace drugbank {

QByteArrayList NomsExportes(const QByteArray& nom, int octets)
{
    const QByteArray decore = nom + '@' + QByteArray::number(octets);
    return {nom, decore, '_' + decore};
}

} // namespace drugbank
