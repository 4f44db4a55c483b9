#pragma once

#include <QRandomGenerator>
#include <QString>

namespace support {

/// A text of at most so many letters that are easily mistaken for one another.
inline QString TexteAuHasard(QRandomGenerator& hasard, int longueurMaximale)
{
    static const QString lettres = QStringLiteral("aAbBeEéÉèêoOœŒæçC -'.1(9:~ZzßÿŸłÑ\u0301Ж");
    QString texte;
    for (int reste = hasard.bounded(longueurMaximale + 1); reste > 0; --reste) {
        texte += lettres[hasard.bounded(static_cast<int>(lettres.size()))];
    }
    return texte;
}

} // namespace support
