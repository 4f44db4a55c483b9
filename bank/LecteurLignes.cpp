#include "bank/LecteurLignes.h"

#include "common/Texte8.h"

#include <QStringDecoder>

#include <cstring>

namespace banque {

namespace {

constexpr char kMarque[] = "\xEF\xBB\xBF";

/// The length of the UTF-8 sequence that begins here; 0 when there is none.
qsizetype Sequence(QByteArrayView octets, qsizetype place)
{
    const auto premier = static_cast<uchar>(octets[place]);
    const qsizetype longueur = premier >= 0xF0 && premier < 0xF5   ? 4
                               : premier >= 0xE0 && premier < 0xF0 ? 3
                               : premier >= 0xC2 && premier < 0xE0 ? 2
                                                                   : 0;
    if (longueur == 0 || place + longueur > octets.size()) {
        return 0;
    }
    for (qsizetype i = 1; i < longueur; ++i) {
        if ((static_cast<uchar>(octets[place + i]) & 0xC0) != 0x80) {
            return 0;
        }
    }
    return longueur;
}

bool EstVide(QStringView texte)
{
    return std::all_of(texte.begin(), texte.end(), [](QChar c) { return c.isSpace(); });
}

} // namespace

Encodage DetecteEncodage(QByteArrayView octets)
{
    qsizetype sequences = 0;
    qsizetype isoles = 0;
    for (qsizetype i = 0; i < octets.size();) {
        if (static_cast<uchar>(octets[i]) < 0x80) {
            ++i;
            continue;
        }
        const qsizetype longueur = Sequence(octets, i);
        ++(longueur > 0 ? sequences : isoles);
        i += std::max<qsizetype>(1, longueur);
    }
    return sequences >= isoles ? Encodage::Utf8 : Encodage::Windows1252;
}

LecteurLignes::LecteurLignes(QByteArrayView octets)
    : octets_(octets.startsWith(kMarque) ? octets.sliced(3) : octets), encodage_(DetecteEncodage(octets_))
{}

qint64 LecteurLignes::NombreDeLignes() const
{
    return std::count(octets_.begin(), octets_.end(), '\n') + (FinOuverte() ? 1 : 0);
}

QByteArrayView LecteurLignes::LigneBrute()
{
    const char* debut = octets_.data() + place_;
    const qsizetype reste = octets_.size() - place_;
    const auto* fin = static_cast<const char*>(std::memchr(debut, '\n', static_cast<size_t>(reste)));
    QByteArrayView ligne(debut, fin ? fin - debut : reste);
    place_ += ligne.size() + (fin ? 1 : 0);
    ++numero_;
    while (ligne.endsWith('\r')) {
        ligne.chop(1);
    }
    return ligne;
}

/// A line of a UTF-8 file that is not UTF-8 came from elsewhere: it is read in the other encoding.
void LecteurLignes::Decode(QByteArrayView brute)
{
    if (encodage_ == Encodage::Utf8) {
        QStringDecoder decodeur(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        texte_ = decodeur(brute);
        if (!decodeur.hasError()) {
            return;
        }
    }
    texte_ = common::DepuisWindows1252(brute);
}

bool LecteurLignes::Suivante(Ligne& ligne)
{
    while (place_ < octets_.size()) {
        Decode(LigneBrute());
        if (EstVide(texte_)) {
            ++vides_;
            continue;
        }
        ligne.Numero = numero_;
        ligne.Champs.clear();
        for (QStringView champ : QStringTokenizer(QStringView(texte_), u'\t')) {
            ligne.Champs.append(champ);
        }
        return true;
    }
    return false;
}

} // namespace banque
