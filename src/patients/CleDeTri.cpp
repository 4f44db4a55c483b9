#include "patients/CleDeTri.h"

#include <QString>
#include <algorithm>
#include <array>

namespace patients {

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
    Repli Lettres;
    std::array<Classe, 2> Classes;
    quint8 Majuscule = 0; ///< characters beyond Latin-1 share one value
};

Caractere Calcule(char16_t c)
{
    const Repli repli = CalculeRepli(c);
    const char16_t majuscule = Majuscule(QChar(c)).unicode();
    return {repli,
            {ClasseDe(repli.Premier), ClasseDe(repli.Second)},
            static_cast<quint8>(majuscule < 0x100 ? majuscule : 1)};
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

/// Writes letter after letter into both words of a key.
class Ecrivain
{
public:
    explicit Ecrivain(CleDeTri& cle) : cle_(cle) {}

    /// False when the key is full, or ends with this letter.
    bool Ajoute(Classe classe)
    {
        quint64& mot = nombre_ < kLettresParMot ? cle_.Repliee : cle_.Suite;
        mot |= quint64(classe.Valeur) << (kBitsDeMot - kBitsParLettre * (nombre_ % kLettresParMot + 1));
        ++nombre_;
        return !classe.Finale && nombre_ < 2 * kLettresParMot;
    }
    /// The bits of the first word that no letter has written.
    quint64 Reste() const
    {
        return (quint64(1) << (kBitsDeMot - kBitsParLettre * std::min(nombre_, kLettresParMot))) - 1;
    }

private:
    CleDeTri& cle_;
    int nombre_ = 0;
};

bool AjouteLettres(Ecrivain& ecrivain, const Caractere& caractere)
{
    if (caractere.Lettres.Premier == 0) {
        return true;
    }
    return ecrivain.Ajoute(caractere.Classes[0]) &&
           (caractere.Lettres.Second == 0 || ecrivain.Ajoute(caractere.Classes[1]));
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
    constexpr qsizetype kMajuscules = 8;
    const Table& caracteres = Caracteres();
    CleDeTri cle;
    Ecrivain ecrivain(cle);
    bool ouverte = true;
    for (qsizetype i = 0; i < texte.size() && (ouverte || i < kMajuscules); ++i) {
        const char16_t c = texte[i].unicode();
        const Caractere& caractere = c < kTable ? caracteres[c] : Calcule(c);
        if (i < kMajuscules) {
            cle.Majuscule |= quint64(caractere.Majuscule) << (8 * i);
            cle.Masque |= quint64(0xFF) << (8 * i);
        }
        ouverte = ouverte && AjouteLettres(ecrivain, caractere);
    }
    cle.FinRepliee = cle.Repliee | ecrivain.Reste();
    return cle;
}

bool CommencePar(QStringView texte, QStringView debut)
{
    return texte.size() >= debut.size() &&
           std::equal(debut.begin(), debut.end(), texte.begin(),
                      [](QChar x, QChar y) { return Majuscule(x) == Majuscule(y); });
}

} // namespace patients
