#pragma once

#include "support/PageDeTest.h"

#include <cmath>

/// What the tests of the certificate's page share: the default margins, measures in the default font.
namespace certificat_de_test {

constexpr double kGauche = 20;
constexpr double kHaut = 100;
constexpr double kProche = 1e-9;

inline double H(const page::Police& police = {})
{
    return page::MesureHauteur(police);
}

inline double L(const QString& texte, const page::Police& police = {})
{
    return page::MesureLargeur(texte, police);
}

inline bool Proche(double a, double b)
{
    return std::abs(a - b) < kProche;
}

inline QString CinqLignes()
{
    return QStringLiteral(
        "Résidence des Lilas\r\nBâtiment C, escalier 4\r\n12 rue Haute\r\nBP 20\r\n75000 PARIS");
}

} // namespace certificat_de_test
