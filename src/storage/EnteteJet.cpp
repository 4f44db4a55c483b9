#include "storage/EnteteJet.h"

#include "storage/EstUneBase.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <numeric>

namespace storage {

namespace {

constexpr qsizetype kTailleEntete = 0x100;
constexpr qsizetype kPlaceMarque = 4;
constexpr qsizetype kPlaceVersion = 0x14;
constexpr qsizetype kPlaceBrouillee = 0x18;
constexpr qsizetype kPlaceCle = 0x3E;
constexpr qsizetype kTailleCle = 4;
constexpr qsizetype kPlaceMotDePasse = 0x42;
constexpr qsizetype kPlaceDate = 0x72;
constexpr qsizetype kTailleMotDePasseJet3 = 20;
constexpr qsizetype kTailleMotDePasseJet4 = 40;
constexpr qsizetype kBrouilleesJet3 = 126;
constexpr qsizetype kBrouilleesJet4 = 128;
constexpr qint64 kPageJet3 = 2048;
constexpr qint64 kPageJet4 = 4096;

/// A stretch of the header is kept under RC4 with this key, the same in every file.
QByteArray Debrouille(QByteArray octets)
{
    constexpr std::array<quint8, 4> kCle{0xC7, 0xDA, 0x39, 0x6B};
    std::array<quint8, 256> etat{};
    std::iota(etat.begin(), etat.end(), quint8(0));
    quint8 j = 0;
    for (size_t i = 0; i < etat.size(); ++i) {
        j = static_cast<quint8>(j + etat[i] + kCle[i % kCle.size()]);
        std::swap(etat[i], etat[j]);
    }
    quint8 i = 0;
    j = 0;
    for (char& octet : octets) {
        ++i;
        j = static_cast<quint8>(j + etat[i]);
        std::swap(etat[i], etat[j]);
        octet = static_cast<char>(octet ^ etat[static_cast<quint8>(etat[i] + etat[j])]);
    }
    return octets;
}

bool Nuls(QByteArrayView octets)
{
    return std::ranges::all_of(octets, [](char octet) { return octet == 0; });
}

/// Jet 4 lays the day of the file's creation over the password.
QByteArray SansLaDate(QByteArray motDePasse, QByteArrayView date)
{
    const double jour = qFromLittleEndian<double>(date.data());
    const auto entier = static_cast<qint32>(std::clamp(jour, 0.0, 1e9));
    const std::array<char, 4> masque{static_cast<char>(entier), static_cast<char>(entier >> 8),
                                     static_cast<char>(entier >> 16), static_cast<char>(entier >> 24)};
    for (qsizetype i = 0; i < motDePasse.size(); ++i) {
        motDePasse[i] = static_cast<char>(motDePasse[i] ^ masque[static_cast<size_t>(i) % masque.size()]);
    }
    return motDePasse;
}

bool EstProtege(const QByteArray& entete, bool jet3)
{
    QByteArray clair = entete;
    const qsizetype brouillees = jet3 ? kBrouilleesJet3 : kBrouilleesJet4;
    clair.replace(kPlaceBrouillee, brouillees, Debrouille(entete.mid(kPlaceBrouillee, brouillees)));
    if (!Nuls(QByteArrayView(clair).sliced(kPlaceCle, kTailleCle))) {
        return true;
    }
    if (jet3) {
        // Some writers leave the stretch empty instead of an empty password.
        return !Nuls(QByteArrayView(clair).sliced(kPlaceMotDePasse, kTailleMotDePasseJet3)) &&
               !Nuls(QByteArrayView(entete).sliced(kPlaceMotDePasse, kTailleMotDePasseJet3));
    }
    return !Nuls(SansLaDate(clair.mid(kPlaceMotDePasse, kTailleMotDePasseJet4),
                            QByteArrayView(clair).sliced(kPlaceDate, sizeof(double))));
}

} // namespace

FormatJet FormatDeLEntete(const QByteArray& debut, qint64 taille)
{
    const QByteArrayView marque = QByteArrayView(debut).sliced(std::min(kPlaceMarque, debut.size()));
    if (marque.startsWith("Standard ACE DB")) {
        return FormatJet::TropRecent;
    }
    if (!marque.startsWith("Standard Jet DB")) {
        return FormatJet::Aucun;
    }
    if (debut.size() < kTailleEntete) {
        return FormatJet::Coupe;
    }
    const char version = debut[kPlaceVersion];
    if (version != 0 && version != 1) {
        return FormatJet::TropRecent;
    }
    if (taille % (version == 0 ? kPageJet3 : kPageJet4) != 0) {
        return FormatJet::Coupe;
    }
    return EstProtege(debut, version == 0) ? FormatJet::Protege : FormatJet::Lisible;
}

FormatJet LitFormatJet(const QString& chemin)
{
    QFile fichier(chemin);
    if (EstUneBase(chemin) || !fichier.open(QIODevice::ReadOnly)) {
        return FormatJet::Aucun;
    }
    return FormatDeLEntete(fichier.read(kTailleEntete), fichier.size());
}

} // namespace storage
