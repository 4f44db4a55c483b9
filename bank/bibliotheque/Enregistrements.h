#pragma once

#include "drugbank/InterfaceBanque.h"

#include <QByteArray>
#include <vector>

/// What the library hands out, each kind behind handles of its own. Texts are Windows-1252.
namespace banque::bibliotheque {

using drugbank::Entier;

struct FichePack
{
    QByteArray Cip;
    QByteArray Nom;
    Entier Id = 0;
    Entier Produit = 0;
    double Prix = 0; ///< what the patient pays, the pharmacist's fee included; 0 when it is free
};
using ListePacks = std::vector<FichePack>;

struct PageDePacks
{
    Entier Total = 0;
    ListePacks Packs;
};

struct FicheProduit
{
    Entier Id = 0;
    QByteArray Nom;
};
using ListeProduits = std::vector<FicheProduit>;

struct FicheGroupe
{
    Entier Id = 0;
};
struct EntreeGroupe
{
    FicheGroupe Groupe;
};
using ListeGroupes = std::vector<EntreeGroupe>;

struct NomCommun
{
    QByteArray Nom; ///< names with ';' between
};

struct FicheDocument
{
    Entier Id = 0;
    QByteArray Nom;
    Entier Type = 0;
    QByteArray Adresse; ///< percent-encoded, so that it is the same in every 8-bit set
};
using ListeDocuments = std::vector<FicheDocument>;

struct ClasseInteraction
{
    Entier Id = 0;
    QByteArray Nom;
};
struct Couple
{
    Entier Id = 0;
    Entier Gravite = 0;
    QByteArray Risque;
    QByteArray Precaution;
    FicheProduit ProduitA;
    FicheProduit ProduitB;
    ClasseInteraction ClasseA;
    ClasseInteraction ClasseB;
};
using ListeCouples = std::vector<Couple>;

struct ResultatInteractions
{
    ListeCouples Couples;   ///< the gravest first
    ListeProduits Inconnus; ///< the products that were not checked, or not whole, each with the reason
};

} // namespace banque::bibliotheque
