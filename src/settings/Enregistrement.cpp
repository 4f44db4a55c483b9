#include "settings/Enregistrement.h"

#include "common/Fichiers.h"
#include "common/Nombres.h"
#include "common/Texte8.h"
#include "common/Tolere.h"

#include <algorithm>

namespace settings {

namespace {

/// "NAME.abime.2", or the first number behind that no file bears.
QString PlaceLibre(const QString& garde)
{
    int numero = 2;
    while (common::FichierExiste(garde + QLatin1Char('.') + QString::number(numero))) {
        ++numero;
    }
    return garde + QLatin1Char('.') + QString::number(numero);
}

} // namespace

QByteArray TexteChamp(const QString& champ)
{
    QString propre = champ;
    propre.replace(QLatin1Char('"'), QLatin1Char('\''));
    std::ranges::replace_if(
        propre, [](QChar c) { return c < QLatin1Char(' ') || c == QChar(0x7F); }, QLatin1Char(' '));
    return '"' + common::VersWindows1252(propre) + '"';
}

QString TexteTenu(const QString& texte)
{
    const QByteArray champ = TexteChamp(texte);
    return common::DepuisWindows1252(QByteArrayView(champ).sliced(1, champ.size() - 2));
}

QByteArray TexteChamp(float champ)
{
    return common::TexteSimple(champ).toLatin1();
}

bool TientDansEnregistrement(QStringView texte)
{
    return common::TientEnWindows1252(texte) && std::ranges::none_of(texte, [](QChar c) {
               return c == QLatin1Char('"') || c < QLatin1Char(' ') || c == QChar(0x7F);
           });
}

QByteArray OctetsEnregistrement(const QString& chemin)
{
    if (!common::FichierExiste(chemin)) {
        return {};
    }
    QByteArray octets(1, '\0');
    // A file that cannot be read counts as damaged: it is not written over without a copy.
    common::Tolere([&] { octets = common::LitFichier(chemin); });
    return octets.isNull() ? QByteArrayLiteral("") : octets;
}

void GardeAbime(const QString& chemin)
{
    const QString garde = chemin + QStringLiteral(".abime");
    if (common::FichierExiste(garde) && common::LitFichier(garde) != common::LitFichier(chemin)) {
        common::DeplaceFichier(garde, PlaceLibre(garde));
    }
    common::CopieFichier(chemin, garde);
}

void EcritOctets(const QString& chemin, const QByteArray& octets)
{
    common::EcritFichier(chemin, octets);
}

} // namespace settings
