#include "drugbank/LiaisonBanque.h"

#include "common/Texte8.h"

#include <algorithm>

namespace drugbank {

namespace {

constexpr Entier kLongueurMax = 1'000'000;

} // namespace

QString LitChaineBanque(const LiaisonBanque& banque, TexteBanque adresse)
{
    const Entier longueur = banque.Chargee() && adresse ? banque.StringLength(adresse) : -1;
    if (longueur < 0) {
        return {};
    }
    if (banque.CopyStringN2.Existe()) {
        const Entier n = std::min(longueur, kLongueurMax);
        QByteArray tampon(n, '\0');
        banque.CopyStringN2(tampon.data(), adresse, n);
        return common::DepuisWindows1252(tampon);
    }
    if (longueur > kLongueurMax) {
        return {}; // `CopyString` copies past any buffer
    }
    QByteArray tampon(longueur + 1, '\0');
    banque.CopyString(tampon.data(), adresse);
    return common::DepuisWindows1252(tampon);
}

QString LitTexte(const LiaisonBanque& banque, TexteBanque adresse)
{
    const QString texte = LitChaineBanque(banque, adresse);
    return texte.left(texte.indexOf(QChar(u'\0')));
}

} // namespace drugbank
