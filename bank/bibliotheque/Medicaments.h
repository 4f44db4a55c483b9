#pragma once

#include "bank/Recherche.h"
#include "bank/bibliotheque/Enregistrements.h"

#include <optional>

/// What is asked of a bank about packs and products. Every function throws `common::Erreur` when it cannot
/// be read.
namespace banque::bibliotheque {

/// A page of a search, from 1. A page or size below 1 counts as 1.
PageDePacks CherchePacks(const Recherche& recherche, const QSqlDatabase& base, const QString& nom,
                         Entier page, Entier taille);

/// The pack of a CIP7 or CIP13, on the market or not; leading zeros may be missing, blanks and points are
/// passed over.
std::optional<FichePack> PackDuCip(const QSqlDatabase& base, const QString& cip);

/// The packs of a product that are on the market, by size.
ListePacks PacksDuProduit(const QSqlDatabase& base, Entier produit);

/// The product of a pack; nothing when the bank lacks either.
std::optional<FicheProduit> ProduitDuPack(const QSqlDatabase& base, Entier pack);

/// Nothing without a common name.
std::optional<NomCommun> NomCommunDuProduit(const QSqlDatabase& base, Entier produit);

/// The generic groups of a product.
ListeGroupes GroupesDuProduit(const QSqlDatabase& base, Entier produit);

/// The members of a group that are on the market: the reference first, then by name.
ListeProduits ProduitsDuGroupe(const QSqlDatabase& base, Entier groupe);

} // namespace banque::bibliotheque
