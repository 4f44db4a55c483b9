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

constexpr int kTable = 0x180; // ASCII, Latin-1 and Latin Extended-A

Repli Replie(char16_t c)
{
    static const auto table = [] {
        std::array<Repli, kTable> replis;
        for (int i = 0; i < kTable; ++i) {
            replis[size_t(i)] = CalculeRepli(char16_t(i));
        }
        return replis;
    }();
    return c < kTable ? table[c] : CalculeRepli(c);
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
            const Repli repli = Replie(texte_[place_++].unicode());
            if (repli.Premier != 0) {
                attente_ = repli.Second;
                return repli.Premier;
            }
        }
        return 0;
    }

private:
    QStringView texte_;
    qsizetype place_ = 0;
    char16_t attente_ = 0;
};

constexpr int kBitsParLettre = 5;
constexpr int kLettres = 12;
constexpr int kBitsDeCle = kBitsParLettre * kLettres;

/// A letter's class in the key. Two letters of one class that are not the same end the key, so that the
/// order of the keys never contradicts the order of the texts.
struct Classe
{
    quint64 Valeur;
    bool Finale;
};

Classe ClasseDe(char16_t lettre)
{
    if (lettre >= u'A' && lettre <= u'Z') {
        return {5u + (lettre - u'A'), false};
    }
    if (lettre == u' ') {
        return {1, false};
    }
    if (lettre == u'-') {
        return {3, false};
    }
    if (lettre < u' ') {
        return {0, true};
    }
    return {lettre < u'-' ? 2u : lettre < u'A' ? 4u : 31u, true};
}

void CalculeRepliee(QStringView texte, CleDeTri& cle)
{
    Lecteur lecteur(texte);
    int reste = kBitsDeCle;
    bool finale = false;
    while (reste > 0 && !finale) {
        const char16_t lettre = lecteur.Suivant();
        if (lettre == 0) {
            break;
        }
        const Classe classe = ClasseDe(lettre);
        reste -= kBitsParLettre;
        cle.Repliee |= classe.Valeur << reste;
        finale = classe.Finale;
    }
    cle.FinRepliee = cle.Repliee | ((quint64(1) << reste) - 1);
}

/// Characters beyond Latin-1 share one byte: equal bytes need `CommencePar`.
quint64 OctetMajuscule(QChar c)
{
    const char16_t unite = Majuscule(c).unicode();
    return unite < 0x100 ? unite : 1;
}

void CalculeMajuscule(QStringView texte, CleDeTri& cle)
{
    const qsizetype nombre = std::min<qsizetype>(8, texte.size());
    for (qsizetype i = 0; i < nombre; ++i) {
        cle.Majuscule |= OctetMajuscule(texte[i]) << (8 * i);
        cle.Masque |= quint64(0xFF) << (8 * i);
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

bool CommencePar(QStringView texte, QStringView debut)
{
    return texte.size() >= debut.size() &&
           std::equal(debut.begin(), debut.end(), texte.begin(),
                      [](QChar x, QChar y) { return Majuscule(x) == Majuscule(y); });
}

} // namespace patients
