#include "common/Nombres.h"

#include <QByteArray>
#include <array>
#include <charconv>
#include <cmath>
#include <locale>
#include <sstream>

namespace common {

namespace {

bool EstChiffre(char c)
{
    return c >= '0' && c <= '9';
}

/// The text in ASCII without its blanks; a character outside ASCII ends it.
QByteArray SansBlancs(QStringView texte)
{
    QByteArray suite;
    for (const QChar c : texte) {
        if (c.unicode() >= 0x80 && !c.isSpace()) {
            break;
        }
        if (!c.isSpace()) {
            suite.append(static_cast<char>(c.unicode()));
        }
    }
    return suite;
}

/// The place after the digits that stand at `place`.
qsizetype ApresChiffres(const QByteArray& texte, qsizetype place)
{
    while (place < texte.size() && EstChiffre(texte[place])) {
        ++place;
    }
    return place;
}

qsizetype ApresSigne(const QByteArray& texte, qsizetype place)
{
    const bool signe = place < texte.size() && (texte[place] == '-' || texte[place] == '+');
    return signe ? place + 1 : place;
}

/// Length of the number that begins the text; 0 when there is none.
qsizetype LongueurDuNombre(const QByteArray& texte)
{
    const qsizetype debut = ApresSigne(texte, 0);
    qsizetype fin = ApresChiffres(texte, debut);
    qsizetype chiffres = fin - debut;
    if (fin < texte.size() && texte[fin] == '.') {
        const qsizetype decimales = ApresChiffres(texte, fin + 1) - (fin + 1);
        chiffres += decimales;
        fin += 1 + decimales;
    }
    if (chiffres == 0) {
        return 0;
    }
    if (fin < texte.size() && (texte[fin] == 'e' || texte[fin] == 'E')) {
        const qsizetype exposant = ApresSigne(texte, fin + 1);
        const qsizetype apres = ApresChiffres(texte, exposant);
        fin = apres > exposant ? apres : fin;
    }
    return fin;
}

/// The value of a text that is wholly a number. One too large for a double gives the largest double, which
/// no other conversion of the standard library does.
double Valeur(const QByteArray& nombre)
{
    std::istringstream flux(nombre.toStdString());
    flux.imbue(std::locale::classic());
    double valeur = 0;
    flux >> valeur;
    return valeur;
}

template <typename Reel> QString EnDecimal(Reel valeur)
{
    std::array<char, 512> tampon{};
    const auto fin =
        std::to_chars(tampon.data(), tampon.data() + tampon.size(), valeur, std::chars_format::fixed);
    return QString::fromLatin1(tampon.data(), fin.ptr - tampon.data());
}

} // namespace

double Val(QStringView texte)
{
    const QByteArray suite = SansBlancs(texte);
    return Valeur(suite.left(LongueurDuNombre(suite)));
}

int ValEntier(QStringView texte, int minimum, int maximum)
{
    const double valeur = std::nearbyint(Val(texte));
    if (valeur <= minimum) {
        return minimum;
    }
    return valeur >= maximum ? maximum : static_cast<int>(valeur);
}

QString TexteNombre(double valeur)
{
    if (!std::isfinite(valeur) || valeur == 0) {
        return QStringLiteral("0");
    }
    // Fifteen digits are sure in a double: the sum of 0.1 and 0.2 reads 0.3.
    return EnDecimal(QByteArray::number(valeur, 'e', 14).toDouble());
}

QString TexteSimple(float valeur)
{
    if (!std::isfinite(valeur) || valeur == 0) {
        return QStringLiteral("0");
    }
    return EnDecimal(QByteArray::number(double(valeur), 'e', 6).toFloat());
}

std::optional<double> NombreAVirgule(QStringView texte)
{
    const QStringView serre = texte.trimmed();
    QByteArray nombre;
    for (const QChar c : serre) {
        const char16_t code = c.unicode();
        const bool admis = (code >= u'0' && code <= u'9') || code == u'-' || code == u'+' || code == u',';
        if (!admis) {
            return std::nullopt;
        }
        nombre.append(code == u',' ? '.' : static_cast<char>(code));
    }
    if (nombre.isEmpty() || LongueurDuNombre(nombre) != nombre.size()) {
        return std::nullopt;
    }
    return Valeur(nombre);
}

} // namespace common
