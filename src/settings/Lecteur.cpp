#include "settings/Lecteur.h"

#include "common/Texte8.h"

#include <algorithm>
#include <cmath>

namespace settings {

namespace {

bool EstBlanc(char c)
{
    return c == ' ' || c == '\t';
}

bool EstFinDeLigne(char c)
{
    return c == '\r' || c == '\n';
}

bool EstBinaire(char c)
{
    const auto octet = static_cast<unsigned char>(c);
    return octet == 0x7F || (octet < 0x20 && !EstBlanc(c) && !EstFinDeLigne(c));
}

/// Decimal digits with point, sign and exponent; no other form of a number.
bool ForgeNombre(const QByteArray& texte)
{
    static const QByteArray permis = QByteArrayLiteral("0123456789.+-eE");
    return std::ranges::all_of(texte, [](char c) { return permis.contains(c); });
}

} // namespace

Lecteur::Lecteur(QByteArrayView octets)
    : octets_(octets),
      abime_(std::ranges::all_of(octets, [](char c) { return EstBlanc(c) || EstFinDeLigne(c); }))
{}

Lecture Lecteur::Etat() const
{
    if (abime_ || std::ranges::any_of(octets_, EstBinaire)) {
        return Lecture::Abimee;
    }
    return court_ ? Lecture::Courte : Lecture::Complete;
}

bool Lecteur::Suivant()
{
    while (place_ < octets_.size() && EstBlanc(octets_[place_])) {
        ++place_;
    }
    court_ = court_ || std::all_of(octets_.begin() + place_, octets_.end(), EstFinDeLigne);
    if (abime_ || court_) {
        return false;
    }
    octets_[place_] == '"' ? PrendEntreGuillemets() : PrendJusquaVirgule();
    abime_ = abime_ || std::ranges::any_of(morceau_, EstBinaire);
    return !abime_;
}

void Lecteur::PrendEntreGuillemets()
{
    const qsizetype debut = place_ + 1;
    const qsizetype fin = octets_.indexOf('"', debut);
    if (fin < 0) {
        abime_ = true;
        return;
    }
    const QByteArray texte = octets_.sliced(debut, fin - debut).toByteArray();
    place_ = fin + 1;
    PrendJusquaVirgule();
    morceau_ = texte;
}

void Lecteur::PrendJusquaVirgule()
{
    const qsizetype debut = place_;
    while (place_ < octets_.size() && octets_[place_] != ',' && !EstFinDeLigne(octets_[place_])) {
        ++place_;
    }
    morceau_ = octets_.sliced(debut, place_ - debut).toByteArray();
    const bool deux = octets_.sliced(place_).startsWith("\r\n");
    place_ = std::min(octets_.size(), place_ + (deux ? 2 : 1));
}

bool Lecteur::NombreSuivant(double& nombre)
{
    if (!Suivant()) {
        return false;
    }
    const QByteArray texte = morceau_.trimmed();
    bool lu = false;
    nombre = texte.toDouble(&lu);
    abime_ = !lu || !ForgeNombre(texte) || !std::isfinite(nombre);
    return !abime_;
}

double Lecteur::Arrondi(double nombre)
{
    return std::nearbyint(nombre);
}

void Lecteur::Lit(QString& champ)
{
    if (Suivant()) {
        champ = common::DepuisWindows1252(morceau_);
    }
}

void Lecteur::Lit(float& champ)
{
    double nombre = 0;
    if (!NombreSuivant(nombre)) {
        return;
    }
    abime_ = std::abs(nombre) > std::numeric_limits<float>::max();
    if (!abime_) {
        champ = static_cast<float>(nombre);
    }
}

} // namespace settings
