#include "common/Erreur.h"

namespace common {

Erreur::Erreur(QString phrase, QString lieu)
    : phrase_(std::move(phrase)), lieu_(std::move(lieu)),
      texte_((phrase_ + QStringLiteral(" (") + lieu_ + QLatin1Char(')')).toUtf8())
{}

} // namespace common
