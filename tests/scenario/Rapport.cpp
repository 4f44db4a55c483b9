#include "scenario/Rapport.h"

#include <cstdio>

namespace scenario {

namespace {

void EcritOctets(const QByteArray& octets)
{
    std::fwrite(octets.constData(), 1, static_cast<size_t>(octets.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

} // namespace

void Rapport::Position(int ligne)
{
    if (ligne > 0 && ligne != ligne_) {
        ligne_ = ligne;
        EcritOctets(kMarquePosition + QByteArray::number(ligne));
    }
}

void Rapport::Reussite(const QString& texte)
{
    Ecrit(QStringLiteral("ok - %1").arg(texte));
}

void Rapport::EchecControle(const QString& texte, const QString& detail)
{
    Ecrit(QStringLiteral("ECHEC - %1 (%2)").arg(texte, detail));
    EcritOctets(QStringLiteral("    %1:%2").arg(fichier_).arg(ligne_).toUtf8());
}

void Rapport::EchecScript(int ligne, const QString& phrase)
{
    Ecrit(PhraseEchec(fichier_, ligne, phrase));
}

void Rapport::Termine()
{
    EcritOctets(QByteArray(1, kMarqueFin));
}

void Rapport::Ecrit(const QString& texte)
{
    EcritOctets(QString(texte).replace(QLatin1Char('\n'), QStringLiteral("\\n")).toUtf8());
}

QString PhraseEchec(const QString& fichier, int ligne, const QString& phrase)
{
    return QStringLiteral("ECHEC - %1:%2 : %3").arg(fichier).arg(ligne).arg(phrase);
}

} // namespace scenario
