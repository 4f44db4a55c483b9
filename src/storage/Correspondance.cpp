#include "storage/Correspondance.h"

namespace storage {

namespace {

/// Each of `presentes` in the place of the column of its name; -1 where there is none.
QList<qsizetype> PlacesParNom(const Table& voulue, const QStringList& presentes)
{
    QList<qsizetype> places;
    qsizetype suivante = 0;
    for (const Colonne& colonne : voulue.Colonnes) {
        const bool trouvee =
            suivante < presentes.size() && colonne.Nom.compare(presentes[suivante], Qt::CaseInsensitive) == 0;
        places.append(trouvee ? suivante++ : -1);
    }
    return suivante == presentes.size() ? places : QList<qsizetype>();
}

} // namespace

QList<qsizetype> Places(const Table& voulue, const QStringList& presentes)
{
    QList<qsizetype> places = PlacesParNom(voulue, presentes);
    for (qsizetype i = places.size(); i < voulue.Colonnes.size(); ++i) {
        places.append(i < presentes.size() ? i : -1);
    }
    return places;
}

} // namespace storage
