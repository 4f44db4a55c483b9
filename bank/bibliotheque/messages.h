#pragma once

#include <QString>
#include <QStringList>

/// What the library says in its answers. The names of products stand in front, so that a list of them is
/// read by its beginnings.
namespace banque::bibliotheque::messages {

inline QString Produit(qint32 id)
{
    return QStringLiteral("Produit %1").arg(id);
}

inline QString NonVerifie(const QString& nom, const QString& raison)
{
    return QStringLiteral("%1 (non vérifié : %2)").arg(nom, raison);
}

inline QString BanqueFermee()
{
    return QStringLiteral("la banque n'est pas ouverte");
}

inline QString BanqueIllisible()
{
    return QStringLiteral("la banque ne peut plus être lue");
}

inline QString ProduitInconnu()
{
    return QStringLiteral("absent de la banque");
}

inline QString SansThesaurus()
{
    return QStringLiteral("la banque ne contient pas le thésaurus des interactions");
}

inline QString Homeopathie()
{
    return QStringLiteral("médicament homéopathique");
}

inline QString SansComposition()
{
    return QStringLiteral("composition absente de la banque");
}

inline QString SubstancesInconnues(const QStringList& inconnues)
{
    return inconnues.size() == 1
               ? QStringLiteral("substance inconnue du thésaurus, %1").arg(inconnues.first())
               : QStringLiteral("substances inconnues du thésaurus, %1")
                     .arg(inconnues.join(QStringLiteral(" et ")));
}

inline QString VerifieEnPartie(const QString& nom, const QStringList& connues, const QStringList& inconnues)
{
    const QString et = QStringLiteral(" et ");
    const QString partie =
        connues.size() == 1
            ? QStringLiteral("%1 (vérifié en partie : seule la substance %2 est vérifiée, %3)")
            : QStringLiteral("%1 (vérifié en partie : seules les substances %2 sont vérifiées, %3)");
    return partie.arg(nom, connues.join(et), SubstancesInconnues(inconnues));
}

inline QString VoieLocale(const QString& nom, const QStringList& voies)
{
    return QStringLiteral("%1 : voie %2.").arg(nom, voies.join(QStringLiteral(" et ")));
}

inline QString RegleDesVoies(const QString& regle)
{
    return QStringLiteral("Le thésaurus indique : « %1 »")
        .arg(QString(regle).replace(u'\n', QLatin1String("\r\n")));
}

inline QString Source(const QString& source)
{
    return QStringLiteral("Source : ") + source;
}

} // namespace banque::bibliotheque::messages
