#pragma once

#include "common/Erreur.h"

namespace upgrade {

/// An upgrade that was given up with every database as it was before.
class MajAbandonnee : public common::Erreur
{
public:
    using Erreur::Erreur;
};

} // namespace upgrade
