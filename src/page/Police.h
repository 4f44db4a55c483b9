#pragma once

#include <QString>

namespace page {

/// A font as the doctor chooses it. `Taille` is in points.
struct Police
{
    QString Nom = QStringLiteral("Arial");
    float Taille = 10;
    bool Gras = false;
    bool Italique = false;
    bool Souligne = false;

    bool operator==(const Police&) const = default;
};

/// A colour as red + 256 green + 65536 blue.
using Couleur = quint32;

constexpr Couleur Rvb(int rouge, int vert, int bleu)
{
    return static_cast<Couleur>(rouge) | static_cast<Couleur>(vert) << 8 | static_cast<Couleur>(bleu) << 16;
}

constexpr Couleur kNoir = 0;
constexpr Couleur kToutesCouleurs = 0xFFFFFF;

} // namespace page
