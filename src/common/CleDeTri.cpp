#include "common/CleDeTri.h"

#include <algorithm>
#include <array>

namespace common {

namespace {

/// The letters that a character is sorted as: none for an accent of its own, two for a ligature.
struct Repli
{
    char16_t Premier = 0;
    char16_t Second = 0;
};

Repli CalculeRepli(char16_t c)
{
    const QChar majuscule = Majuscule(QChar(c));
    switch (majuscule.unicode()) {
    case u'Œ':
        return {u'O', u'E'};
    case u'Æ':
        return {u'A', u'E'};
    case u'ß':
        return {u'S', u'S'};
    case u'Ø':
        return {u'O'};
    case u'Ł':
        return {u'L'};
    case u'Đ':
        return {u'D'};
    default:
        break;
    }
    if (majuscule.isMark()) {
        return {};
    }
    QChar base = majuscule;
    while (base.decompositionTag() == QChar::Canonical) {
        base = base.decomposition().front();
    }
    return {base.unicode()};
}

/// A letter's class in the key, growing with the letter. Letters of one class that are not the same end
/// the key, so that the order of the keys never contradicts the order of the texts.
struct Classe
{
    quint8 Valeur = 0;
    bool Finale = false;
};

constexpr Classe ClasseDe(char16_t lettre)
{
    if (lettre >= u'A' && lettre <= u'Z') {
        return {quint8(19 + (lettre - u'A')), false};
    }
    if (lettre >= u'-' && lettre <= u'9') {
        return {quint8(5 + (lettre - u'-')), false};
    }
    if (lettre == u' ') {
        return {1, false};
    }
    if (lettre == u'\'') {
        return {3, false};
    }
    if (lettre < u'\'') {
        return {quint8(lettre < u' ' ? 0 : 2), true};
    }
    return {quint8(lettre < u'-' ? 4 : lettre < u'A' ? 18 : 45), true};
}

/// All that is asked of a character.
struct Caractere
{
    Repli Lettres = {};
    std::array<Classe, 2> Classes = {};
    quint8 Nombre = 0;    ///< of its letters
    bool Simple = false;  ///< one letter that does not end a key
    quint8 Majuscule = 0; ///< characters beyond Latin-1 share one value
};

Caractere Calcule(char16_t c)
{
    const Repli repli = CalculeRepli(c);
    const char16_t majuscule = Majuscule(QChar(c)).unicode();
    Caractere caractere{repli, {ClasseDe(repli.Premier), ClasseDe(repli.Second)}};
    caractere.Nombre = static_cast<quint8>((repli.Premier != 0) + (repli.Second != 0));
    caractere.Simple = caractere.Nombre == 1 && !caractere.Classes[0].Finale;
    caractere.Majuscule = static_cast<quint8>(majuscule < 0x100 ? majuscule : 1);
    return caractere;
}

constexpr int kTable = 0x180; // ASCII, Latin-1 and Latin Extended-A
using Table = std::array<Caractere, kTable>;

const Table& Caracteres()
{
    static const Table table = [] {
        Table caracteres;
        for (int i = 0; i < kTable; ++i) {
            caracteres[size_t(i)] = Calcule(char16_t(i));
        }
        return caracteres;
    }();
    return table;
}

/// Reads a text letter by letter as it is sorted; 0 at its end.
class Lecteur
{
public:
    explicit Lecteur(QStringView texte) : texte_(texte) {}

    char16_t Suivant()
    {
        if (attente_ != 0) {
            return std::exchange(attente_, char16_t(0));
        }
        while (place_ < texte_.size()) {
            const char16_t c = texte_[place_++].unicode();
            const Repli repli = c < kTable ? caracteres_[c].Lettres : CalculeRepli(c);
            if (repli.Premier != 0) {
                attente_ = repli.Second;
                return repli.Premier;
            }
        }
        return 0;
    }

private:
    const Table& caracteres_ = Caracteres();
    QStringView texte_;
    qsizetype place_ = 0;
    char16_t attente_ = 0;
};

constexpr int kBitsParLettre = 6;
constexpr int kLettresParMot = 10;
constexpr int kBitsDeMot = kBitsParLettre * kLettresParMot;

/// One word of a key, filled letter after letter from the highest.
struct Mot
{
    quint64 Bits = 0;
    int Nombre = 0;

    bool Plein() const { return Nombre == kLettresParMot; }
    void Ajoute(quint8 valeur)
    {
        Bits = Bits << kBitsParLettre | valeur;
        ++Nombre;
    }
    int Reste() const { return kBitsDeMot - kBitsParLettre * Nombre; }
    quint64 Cale() const { return Nombre == 0 ? 0 : Bits << Reste(); }
};

/// The plain way for all but a few characters: one letter, whose class does not end the key. Gives the
/// place where it stops, at the text's end, at the word's or at another character.
qsizetype RemplitSimples(QStringView texte, qsizetype place, Mot& mot)
{
    const Table& caracteres = Caracteres();
    while (place < texte.size() && !mot.Plein()) {
        const char16_t c = texte[place].unicode();
        if (c >= kTable || !caracteres[c].Simple) {
            break;
        }
        mot.Ajoute(caracteres[c].Classes[0].Valeur);
        ++place;
    }
    return place;
}

/// The letters of any one character. False when the key ends with it.
bool AjouteLettres(char16_t c, Mot& premier, Mot& second)
{
    const Caractere caractere = c < kTable ? Caracteres()[c] : Calcule(c);
    for (int n = 0; n < caractere.Nombre; ++n) {
        Mot& mot = premier.Plein() ? second : premier;
        if (mot.Plein()) {
            return false;
        }
        mot.Ajoute(caractere.Classes[size_t(n)].Valeur);
        if (caractere.Classes[size_t(n)].Finale) {
            return false;
        }
    }
    return true;
}

void CalculeRepliee(QStringView texte, CleDeTri& cle)
{
    Mot premier;
    Mot second;
    for (qsizetype place = 0; place < texte.size() && !second.Plein();) {
        place = RemplitSimples(texte, place, premier.Plein() ? second : premier);
        if (place < texte.size() && !AjouteLettres(texte[place++].unicode(), premier, second)) {
            break;
        }
    }
    cle.Repliee = premier.Cale();
    cle.Suite = second.Cale();
    cle.FinRepliee = cle.Repliee | ((quint64(1) << premier.Reste()) - 1);
}

void CalculeMajuscule(QStringView texte, CleDeTri& cle)
{
    const Table& caracteres = Caracteres();
    const qsizetype nombre = std::min<qsizetype>(8, texte.size());
    for (qsizetype i = nombre - 1; i >= 0; --i) {
        const char16_t c = texte[i].unicode();
        cle.Majuscule = cle.Majuscule << 8 | (c < kTable ? caracteres[c].Majuscule : Calcule(c).Majuscule);
        cle.Masque = cle.Masque << 8 | 0xFF;
    }
}

} // namespace

std::strong_ordering CompareReplie(QStringView a, QStringView b)
{
    Lecteur gauche(a);
    Lecteur droite(b);
    for (;;) {
        const char16_t x = gauche.Suivant();
        const char16_t y = droite.Suivant();
        if (x != y || x == 0) {
            return x <=> y;
        }
    }
}

CleDeTri Cle(QStringView texte)
{
    CleDeTri cle;
    CalculeRepliee(texte, cle);
    CalculeMajuscule(texte, cle);
    return cle;
}

QString Replie(QStringView texte)
{
    QString replie;
    replie.reserve(texte.size());
    Lecteur lecteur(texte);
    while (const char16_t lettre = lecteur.Suivant()) {
        replie.append(QChar(lettre));
    }
    return replie;
}

bool CommencePar(QStringView texte, QStringView debut)
{
    return texte.size() >= debut.size() &&
           std::equal(debut.begin(), debut.end(), texte.begin(),
                      [](QChar x, QChar y) { return Majuscule(x) == Majuscule(y); });
}

} // namespace common
