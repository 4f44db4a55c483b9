#include "common/Lignes.h"

#include <algorithm>

namespace common {

QStringList PartiesDeTexte(const QString& texte)
{
    const auto finDeLigne = [](QChar c) { return c == QLatin1Char('\n') || c == QLatin1Char('\r'); };
    if (std::ranges::none_of(texte, finDeLigne)) {
        return {texte};
    }
    QString unies = texte;
    unies.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    unies.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return unies.split(QLatin1Char('\n'));
}

QStringList LignesDeTexte(const QString& texte)
{
    QStringList lignes = PartiesDeTexte(texte);
    if (lignes.constLast().isEmpty()) {
        lignes.removeLast();
    }
    return lignes;
}

} // namespace common
