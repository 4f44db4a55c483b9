#include "bank/ThesaurusRapport.h"

#include <algorithm>

namespace banque {

namespace {

/// What stands under an entry: itself, and every class that leads to it.
QHash<int, QSet<int>> ClassesDesEntrees(const Thesaurus& thesaurus)
{
    QHash<int, QSet<int>> classes;
    const QHash<int, QSet<int>> membres = MembresDesClasses(thesaurus);
    for (auto classe = membres.cbegin(); classe != membres.cend(); ++classe) {
        for (const int membre : *classe) {
            classes[membre].insert(classe.key());
        }
    }
    return classes;
}

bool EnCommun(const std::vector<int>& a, const std::vector<int>& b)
{
    return std::any_of(a.begin(), a.end(), [&](int x) { return std::ranges::binary_search(b, x); });
}

} // namespace

Interactions::Interactions(const Thesaurus& thesaurus, const LiensThesaurus& liens)
    : entrees_(thesaurus.Entrees), interactions_(thesaurus.Interactions),
      parEntree_(static_cast<std::size_t>(thesaurus.Entrees.size())),
      voieOrale_(thesaurus.Place(QStringLiteral("MÉDICAMENTS ADMINISTRÉS PAR VOIE ORALE"))),
      voieVaginale_(thesaurus.Place(QStringLiteral("MÉDICAMENTS UTILISÉS PAR VOIE VAGINALE")))
{
    const QHash<int, QSet<int>> classes = ClassesDesEntrees(thesaurus);
    QHash<int, QSet<int>> entrees;
    for (auto lien = liens.cbegin(); lien != liens.cend(); ++lien) {
        QSet<int>& siennes = entrees[lien.value()];
        siennes.insert(lien.key());
        siennes += classes.value(lien.key());
    }
    for (auto code = entrees.cbegin(); code != entrees.cend(); ++code) {
        std::vector<int> toutes(code->begin(), code->end());
        std::ranges::sort(toutes);
        std::vector<int> substances;
        std::ranges::copy_if(toutes, std::back_inserter(substances),
                             [&](int e) { return !entrees_[e].Classe; });
        entreesDeCode_.insert(code.key(), std::move(toutes));
        substancesDeCode_.insert(code.key(), std::move(substances));
    }
    for (int i = 0; i < interactions_.size(); ++i) {
        const Interaction& interaction = interactions_[i];
        parEntree_[std::size_t(interaction.A)].push_back(i);
        if (interaction.A != interaction.B) {
            parEntree_[std::size_t(interaction.B)].push_back(i);
        }
    }
}

Interactions::Fiche Interactions::Prepare(const ProduitAVerifier& produit) const
{
    QMap<int, std::vector<int>> codes;
    for (const int code : produit.Codes) {
        const auto entrees = entreesDeCode_.constFind(code);
        if (entrees == entreesDeCode_.constEnd()) {
            continue;
        }
        for (const int entree : *entrees) {
            codes[entree].push_back(code);
        }
    }
    for (const auto& [voie, prise] :
         {qMakePair(voieOrale_, produit.Orale), qMakePair(voieVaginale_, produit.Vaginale)}) {
        if (voie >= 0 && prise) {
            codes[voie].clear();
        }
    }
    Fiche fiche;
    for (auto entree = codes.cbegin(); entree != codes.cend(); ++entree) {
        fiche.push_back({entree.key(), entree.value()});
    }
    return fiche;
}

bool Interactions::MemeSubstance(int a, int b) const
{
    return a == b || EnCommun(substancesDeCode_.constFind(a).value(), substancesDeCode_.constFind(b).value());
}

/// A substance does not interact with itself, whatever classes it is in. Between two substances that the
/// thesaurus itself tells apart, only the very same code does not count.
bool Interactions::Vaut(const Interaction& interaction, const Appartenance& a, const Appartenance& b) const
{
    if (a.Codes.empty() || b.Codes.empty() || (interaction.A == interaction.B && !interaction.Autre)) {
        return true;
    }
    const bool distinctes =
        interaction.A != interaction.B && !entrees_[interaction.A].Classe && !entrees_[interaction.B].Classe;
    return std::ranges::any_of(a.Codes, [&](int x) {
        return std::ranges::any_of(b.Codes,
                                   [&](int y) { return distinctes ? x != y : !MemeSubstance(x, y); });
    });
}

void Interactions::Croise(const std::vector<Fiche>& fiches, int a, int b, Niveau minimum,
                          RapportInteractions& rapport) const
{
    const Fiche& cotes = fiches[std::size_t(b)];
    QHash<QPair<int, int>, qsizetype> trouves; // of a pair of entries, its place in the report
    for (const Appartenance& cote : fiches[std::size_t(a)]) {
        for (const int i : parEntree_[std::size_t(cote.Entree)]) {
            const Interaction& interaction = interactions_[i];
            if (interaction.Niveau < minimum) {
                continue;
            }
            const int autre = interaction.A == cote.Entree ? interaction.B : interaction.A;
            const auto vis = std::ranges::lower_bound(cotes, autre, {}, &Appartenance::Entree);
            if (vis == cotes.end() || vis->Entree != autre || !Vaut(interaction, cote, *vis)) {
                continue;
            }
            const QPair<int, int> couple(qMin(interaction.A, interaction.B),
                                         qMax(interaction.A, interaction.B));
            const auto connu = trouves.constFind(couple);
            if (connu == trouves.constEnd()) {
                trouves.insert(couple, rapport.Couples.size());
                rapport.Couples.append({a, b, cote.Entree, autre, i});
            } else if (interactions_[rapport.Couples[*connu].Interaction].Niveau < interaction.Niveau) {
                rapport.Couples[*connu] = {a, b, cote.Entree, autre, i};
            }
        }
    }
}

void Interactions::Trie(RapportInteractions& rapport) const
{
    std::ranges::stable_sort(rapport.Couples, [this](const CoupleSignale& x, const CoupleSignale& y) {
        return interactions_[x.Interaction].Niveau > interactions_[y.Interaction].Niveau;
    });
}

RapportInteractions Interactions::Rapport(const QList<ProduitAVerifier>& produits, Niveau minimum) const
{
    RapportInteractions rapport;
    std::vector<Fiche> fiches;
    for (int i = 0; i < produits.size(); ++i) {
        const QList<int>& codes = produits[i].Codes;
        const auto connus =
            std::ranges::count_if(codes, [&](int code) { return entreesDeCode_.contains(code); });
        if (connus == 0) {
            rapport.NonVerifies.append(i);
        } else if (connus < codes.size()) {
            rapport.Partiels.append(i);
        }
        fiches.push_back(Prepare(produits[i]));
    }
    for (int a = 0; a < produits.size(); ++a) {
        for (int b = a + 1; b < produits.size(); ++b) {
            Croise(fiches, a, b, minimum, rapport);
        }
    }
    Trie(rapport);
    return rapport;
}

} // namespace banque
