#include "bank/bibliotheque/Medicaments.h"

#include "bank/Mots.h"
#include "bank/Selection.h"
#include "bank/bibliotheque/Transcription.h"

#include <algorithm>

namespace banque::bibliotheque {

namespace {

constexpr qsizetype kCip7 = 7;
constexpr qsizetype kCip13 = 13;

/// Texts with the key that sorts them as a reader does.
template <typename Fiche> struct Classee
{
    QString Cle;
    Fiche Valeur;
};

template <typename Fiche> std::vector<Fiche> Trie(std::vector<Classee<Fiche>> fiches)
{
    std::ranges::stable_sort(fiches, {}, &Classee<Fiche>::Cle);
    std::vector<Fiche> triees;
    for (Classee<Fiche>& fiche : fiches) {
        triees.push_back(std::move(fiche.Valeur));
    }
    return triees;
}

FichePack LitPack(const QSqlQuery& rangee)
{
    return {EnWindows1252(rangee.value(0).toString()), EnWindows1252(rangee.value(1).toString()),
            rangee.value(2).toInt(), rangee.value(3).toInt(), rangee.value(4).toDouble()};
}

/// The digits of a code without its leading zeros; nothing when it holds anything else.
std::optional<QString> Chiffres(const QString& cip)
{
    QString chiffres;
    for (const QChar c : cip) {
        if (c >= u'0' && c <= u'9') {
            chiffres += c;
        } else if (!c.isSpace() && c != u'.') {
            return std::nullopt;
        }
    }
    while (chiffres.startsWith(u'0')) {
        chiffres.remove(0, 1);
    }
    return chiffres.isEmpty() || chiffres.size() > kCip13 ? std::nullopt : std::optional(chiffres);
}

} // namespace

PageDePacks CherchePacks(const Recherche& recherche, const QSqlDatabase& base, const QString& nom,
                         Entier page, Entier taille)
{
    const PageTrouvee trouvee = recherche.Cherche(base, nom, std::max(page, 1) - 1, std::max(taille, 1));
    PageDePacks packs;
    packs.Total = trouvee.Total;
    for (const PackTrouve& pack : trouvee.Packs) {
        packs.Packs.push_back(
            {EnWindows1252(pack.Cip13), EnWindows1252(pack.Nom), pack.Id, pack.Cis, pack.Prix.value_or(0)});
    }
    return packs;
}

std::optional<FichePack> PackDuCip(const QSqlDatabase& base, const QString& cip)
{
    const std::optional<QString> chiffres = Chiffres(cip);
    if (!chiffres) {
        return std::nullopt;
    }
    const bool court = chiffres->size() <= kCip7;
    Selection selection(
        base,
        court ? QStringLiteral("select cip13, nom, id, cis, prix_total from presentations where id = ?")
              : QStringLiteral("select cip13, nom, id, cis, prix_total from presentations where cip13 = ?"));
    std::optional<FichePack> pack;
    selection.PourChaque(
        {court ? QVariant(chiffres->toInt()) : QVariant(chiffres->rightJustified(kCip13, u'0'))},
        [&](const QSqlQuery& rangee) { pack = LitPack(rangee); });
    return pack;
}

ListePacks PacksDuProduit(const QSqlDatabase& base, Entier produit)
{
    std::vector<Classee<FichePack>> packs;
    Selection(base, QStringLiteral("select cip13, nom, id, cis, prix_total, libelle from presentations "
                                   "where cis = ? and commercialisee"))
        .PourChaque({produit}, [&](const QSqlQuery& rangee) {
            packs.push_back({CleNaturelle(rangee.value(5).toString()), LitPack(rangee)});
        });
    return Trie(std::move(packs));
}

std::optional<FicheProduit> ProduitDuPack(const QSqlDatabase& base, Entier pack)
{
    std::optional<FicheProduit> produit;
    Selection(base,
              QStringLiteral("select s.cis, s.nom from presentations p join specialites s on s.cis = p.cis "
                             "where p.id = ?"))
        .PourChaque({pack}, [&](const QSqlQuery& rangee) {
            produit = {rangee.value(0).toInt(), EnWindows1252(rangee.value(1).toString())};
        });
    return produit;
}

std::optional<NomCommun> NomCommunDuProduit(const QSqlDatabase& base, Entier produit)
{
    const QString dci = Selection(base, QStringLiteral("select dci from specialites where cis = ?"))
                            .Valeur({produit})
                            .toString();
    return dci.isEmpty() ? std::nullopt : std::optional(NomCommun{EnWindows1252(dci)});
}

ListeGroupes GroupesDuProduit(const QSqlDatabase& base, Entier produit)
{
    ListeGroupes groupes;
    Selection(base,
              QStringLiteral("select distinct groupe from groupes_membres where cis = ? order by groupe"))
        .PourChaque({produit},
                    [&](const QSqlQuery& rangee) { groupes.push_back({{rangee.value(0).toInt()}}); });
    return groupes;
}

ListeProduits ProduitsDuGroupe(const QSqlDatabase& base, Entier groupe)
{
    std::vector<Classee<FicheProduit>> produits;
    Selection(base, QStringLiteral("select s.cis, s.nom, min(m.type) from groupes_membres m "
                                   "join specialites s on s.cis = m.cis "
                                   "where m.groupe = ? and s.commercialisee group by s.cis order by s.cis"))
        .PourChaque({groupe}, [&](const QSqlQuery& rangee) {
            const QString nom = rangee.value(1).toString();
            const QChar reference = rangee.value(2).toInt() == 0 ? u'0' : u'1';
            produits.push_back(
                {reference + CleNaturelle(nom), {rangee.value(0).toInt(), EnWindows1252(nom)}});
        });
    return Trie(std::move(produits));
}

} // namespace banque::bibliotheque
