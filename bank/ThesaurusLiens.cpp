#include "bank/ThesaurusLiens.h"

#include "bank/ThesaurusEquivalences.h"
#include "bank/ThesaurusNoms.h"

namespace banque {

namespace {

constexpr qsizetype kDebutCommun = 5; // letters that the name of a fraction shares with its substance

/// Every form of every public name with the codes that bear it, in order for the search of beginnings.
using Formes = QMultiMap<QString, int>;

Formes FormesDe(const QList<SubstancePublique>& substances)
{
    Formes formes;
    for (const SubstancePublique& substance : substances) {
        QSet<QString> siennes;
        for (const QString& nom : substance.Noms) {
            siennes += FormesPubliques(nom);
        }
        for (const QString& forme : std::as_const(siennes)) {
            formes.insert(forme, substance.Code);
        }
    }
    return formes;
}

QSet<int> CodesDe(const Formes& formes, const QString& nom)
{
    QSet<int> codes;
    if (!nom.endsWith(u'*')) {
        const QList<int> trouves = formes.values(nom);
        return {trouves.begin(), trouves.end()};
    }
    const QString debut = nom.chopped(1);
    for (auto forme = formes.lowerBound(debut); forme != formes.end() && forme.key().startsWith(debut);
         ++forme) {
        codes.insert(forme.value());
    }
    return codes;
}

/// The beginnings of the words that tell one substance from another.
QSet<QString> Debuts(const QStringList& noms)
{
    QSet<QString> debuts;
    for (const QString& nom : noms) {
        for (const QString& mot : CleDeNom(nom).split(u' ')) {
            if (mot.size() >= kDebutCommun && !EstMotCommun(mot)) {
                debuts.insert(mot.left(kDebutCommun));
            }
        }
    }
    return debuts;
}

/// Both codes of every pair, each with the other.
QMultiHash<int, int> Partenaires(const QList<Fraction>& fractions)
{
    QMultiHash<int, int> partenaires;
    for (const Fraction& fraction : fractions) {
        partenaires.insert(fraction.Active, fraction.Therapeutique);
        partenaires.insert(fraction.Therapeutique, fraction.Active);
    }
    return partenaires;
}

/// Codes that no name has linked take those entries of the codes paired with them in the public files that
/// their own name begins like: "LYSINATE D'IBUPROFÈNE" that of "ibuprofene", "IODE" none of "iomeprol".
void Complete(LiensThesaurus& liens, const Thesaurus& thesaurus, const QList<SubstancePublique>& substances,
              const QList<Fraction>& fractions)
{
    QMultiHash<int, int> entrees;
    for (auto lien = liens.cbegin(); lien != liens.cend(); ++lien) {
        entrees.insert(lien.value(), lien.key());
    }
    const QMultiHash<int, int> partenaires = Partenaires(fractions);
    for (const SubstancePublique& substance : substances) {
        if (entrees.contains(substance.Code) || !partenaires.contains(substance.Code)) {
            continue;
        }
        const QSet<QString> siens = Debuts(substance.Noms);
        QSet<int> trouvees;
        for (const int code : partenaires.values(substance.Code)) {
            for (const int entree : entrees.values(code)) {
                if (siens.intersects(Debuts({thesaurus.Entrees[entree].Cle}))) {
                    trouvees.insert(entree);
                }
            }
        }
        for (const int entree : std::as_const(trouvees)) {
            liens.insert(entree, substance.Code);
        }
    }
}

} // namespace

LiensThesaurus Lie(const Thesaurus& thesaurus, const QList<SubstancePublique>& substances,
                   const QList<Fraction>& fractions)
{
    const Formes formes = FormesDe(substances);
    LiensThesaurus liens;
    for (int place = 0; place < thesaurus.Entrees.size(); ++place) {
        const EntreeThesaurus& entree = thesaurus.Entrees[place];
        QStringList noms = Equivalences().value(entree.Cle);
        if (!entree.Classe) {
            noms += ClesDEntree(entree.Nom);
        }
        QSet<int> codes;
        for (const QString& nom : std::as_const(noms)) {
            codes += CodesDe(formes, nom);
        }
        for (const int code : std::as_const(codes)) {
            liens.insert(place, code);
        }
    }
    Complete(liens, thesaurus, substances, fractions);
    return liens;
}

QHash<int, QSet<int>> MembresDesClasses(const Thesaurus& thesaurus)
{
    QMultiHash<int, int> directs;
    QHash<int, QSet<int>> membres;
    for (const auto& [classe, membre] : thesaurus.Appartenances) {
        directs.insert(classe, membre);
        membres[classe];
    }
    for (auto classe = membres.begin(); classe != membres.end(); ++classe) {
        QList<int> aVoir = {classe.key()};
        while (!aVoir.isEmpty()) {
            const int place = aVoir.takeLast();
            if (!classe->contains(place)) {
                classe->insert(place);
                aVoir += directs.values(place);
            }
        }
    }
    return membres;
}

int NbInteractionsLiees(const Thesaurus& thesaurus, const LiensThesaurus& liens)
{
    const QHash<int, QSet<int>> membres = MembresDesClasses(thesaurus);
    const auto liee = [&](int place) {
        const QSet<int> siens = membres.value(place);
        return liens.contains(place) ||
               std::any_of(siens.begin(), siens.end(), [&](int membre) { return liens.contains(membre); });
    };
    return int(std::count_if(thesaurus.Interactions.begin(), thesaurus.Interactions.end(),
                             [&](const Interaction& i) { return liee(i.A) && liee(i.B); }));
}

} // namespace banque
