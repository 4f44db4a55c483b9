#include "bank/Thesaurus.h"

#include "bank/ThesaurusEquivalences.h"
#include "bank/ThesaurusLecture.h"
#include "bank/ThesaurusNoms.h"
#include "bank/ThesaurusTexte.h"

#include <QSet>

namespace banque {

namespace {

/// A printed interaction with its sides found.
struct CoteTrouve
{
    int Entree = 0;
    bool Autre = false;
};

/// What is known of a pair while the document is gone through.
struct Etat
{
    int Place = 0;
    bool VueDeA = false;
    bool VueDeB = false;
};

/// Turns headings and what stands below them into entries and pairs.
class Assemblage
{
public:
    Thesaurus Assemble(const DocumentImprime& document);

private:
    int Entree(const QString& nom);
    void Rattache(int classe, int membre);
    void LitTitre(const TitreImprime& titre);
    void LitRenvois(const TitreImprime& titre);
    void LitCotes(const TitreImprime& titre);
    CoteTrouve Trouve(const QString& nom);
    int TrouveAutre(const QString& cle, const QString& nom);
    void Ajoute(const Interaction& lue);
    void Rapproche(Etat& etat, const Interaction& lue);
    void Controle();
    QString Couple(const Interaction& interaction) const;

    Thesaurus thesaurus_;
    QSet<QPair<int, int>> rattachees_;
    QHash<QPair<QPair<int, int>, bool>, Etat> couples_;
};

int Assemblage::Entree(const QString& nom)
{
    const QString cle = CleDeNom(nom);
    const auto connue = thesaurus_.ParCle.constFind(cle);
    if (connue != thesaurus_.ParCle.constEnd()) {
        return *connue;
    }
    const int place = int(thesaurus_.Entrees.size());
    thesaurus_.ParCle.insert(cle, place);
    thesaurus_.Entrees.append({nom, cle, false});
    return place;
}

void Assemblage::Rattache(int classe, int membre)
{
    thesaurus_.Entrees[classe].Classe = true;
    if (classe != membre && !rattachees_.contains({classe, membre})) {
        rattachees_.insert({classe, membre});
        thesaurus_.Appartenances.append({classe, membre});
    }
}

void Assemblage::LitTitre(const TitreImprime& titre)
{
    const int classe = Entree(titre.Nom);
    for (const QString& membre : titre.Membres) {
        const QString cle = CleDeNom(membre);
        if (!cle.isEmpty() && !EstSansSubstance(cle)) {
            Rattache(classe, Entree(membre));
        }
    }
}

void Assemblage::LitRenvois(const TitreImprime& titre)
{
    const int membre = Entree(titre.Nom);
    for (const QString& nom : titre.VoirAussi) {
        const int classe = thesaurus_.Place(nom);
        if (classe >= 0) {
            Rattache(classe, membre);
        } else if (!CleDeNom(nom).isEmpty()) {
            thesaurus_.Bilan.Desaccords.append(titre.Nom + QStringLiteral(" : renvoi sans rubrique : ") +
                                               nom);
        }
    }
}

/// The class that "AUTRES X" speaks of, under whatever name its own heading has.
int Assemblage::TrouveAutre(const QString& cle, const QString& nom)
{
    const QString medicaments = QStringLiteral("MEDICAMENTS ");
    for (const QString& essai : {cle, cle.startsWith(medicaments) ? cle.mid(medicaments.size()) : cle}) {
        const int place = thesaurus_.ParCle.value(essai, -1);
        if (place >= 0) {
            return place;
        }
    }
    const QString rubrique = RubriqueDe(cle);
    return rubrique.isEmpty() ? Entree(nom) : Entree(rubrique);
}

CoteTrouve Assemblage::Trouve(const QString& nom)
{
    const QString autres = QStringLiteral("AUTRES ");
    const QString cle = CleDeNom(nom);
    if (thesaurus_.ParCle.contains(cle)) {
        return {thesaurus_.ParCle.value(cle), false};
    }
    if (cle.startsWith(autres) && cle.size() > autres.size()) {
        return {TrouveAutre(cle.mid(autres.size()), nom.mid(autres.size())), true};
    }
    if (cle.endsWith(QStringLiteral(" AUTRES"))) {
        return {TrouveAutre(cle.chopped(autres.size()), nom.left(nom.lastIndexOf(u'(')).simplified()), true};
    }
    return {Entree(nom), false};
}

QString Assemblage::Couple(const Interaction& interaction) const
{
    return thesaurus_.Entrees[interaction.A].Nom + QStringLiteral(" + ") +
           thesaurus_.Entrees[interaction.B].Nom;
}

/// Both printings of a pair say the same. Where they do not, the higher level counts, then the longer text.
void Assemblage::Rapproche(Etat& etat, const Interaction& lue)
{
    Interaction& gardee = thesaurus_.Interactions[etat.Place];
    if (gardee.Niveau != lue.Niveau || gardee.Risque != lue.Risque || gardee.Precaution != lue.Precaution ||
        gardee.Conditionnelle != lue.Conditionnelle) {
        thesaurus_.Bilan.Desaccords.append(Couple(gardee) +
                                           QStringLiteral(" : les deux impressions diffèrent"));
    }
    const auto poids = [](const Interaction& i) {
        return qMakePair(int(i.Niveau), i.Risque.size() + i.Precaution.size());
    };
    if (poids(lue) > poids(gardee)) {
        const QPair<int, int> cotes(gardee.A, gardee.B);
        gardee = lue;
        gardee.A = cotes.first;
        gardee.B = cotes.second;
    }
}

void Assemblage::Ajoute(const Interaction& lue)
{
    const QPair<int, int> cotes(qMin(lue.A, lue.B), qMax(lue.A, lue.B));
    const auto connue = couples_.find({cotes, lue.Autre});
    if (connue == couples_.end()) {
        Etat etat;
        etat.Place = int(thesaurus_.Interactions.size());
        (lue.A == cotes.first ? etat.VueDeA : etat.VueDeB) = true;
        couples_.insert({cotes, lue.Autre}, etat);
        thesaurus_.Interactions.append(lue);
        return;
    }
    (lue.A == cotes.first ? connue->VueDeA : connue->VueDeB) = true;
    Rapproche(*connue, lue);
}

/// The levels by name, then the advice with their conditions. An advice that is left out stands in what the
/// document says of the class.
QString PrecautionSelonLeCas(const TitreImprime& titre, const CoteImprime& cote)
{
    const QString conseil = cote.Precaution.isEmpty() ? titre.Introduction : cote.Precaution;
    return NomsDesNiveaux(cote.Niveaux) + (conseil.isEmpty() ? QString() : u'\n' + conseil);
}

void Assemblage::LitCotes(const TitreImprime& titre)
{
    for (const CoteImprime& cote : titre.Cotes) {
        const auto niveaux = LitNiveaux(cote.Niveaux);
        if (!niveaux || CleDeNom(cote.Nom).isEmpty()) {
            ++thesaurus_.Bilan.SansNiveau;
            continue;
        }
        ++thesaurus_.Bilan.Lues;
        const CoteTrouve autre = Trouve(cote.Nom);
        Ajoute({Entree(titre.Nom), autre.Entree, niveaux->Plus, autre.Autre, niveaux->Plusieurs, cote.Risque,
                niveaux->Plusieurs ? PrecautionSelonLeCas(titre, cote) : cote.Precaution});
    }
}

/// Tells of the pairs that one side alone prints; "AUTRES X" under X has no other side.
void Assemblage::Controle()
{
    for (const Etat& etat : std::as_const(couples_)) {
        const Interaction& interaction = thesaurus_.Interactions[etat.Place];
        if (interaction.A != interaction.B && etat.VueDeA != etat.VueDeB) {
            thesaurus_.Bilan.Uniques.append(Couple(interaction));
        }
    }
    thesaurus_.Bilan.Uniques.sort();
}

Thesaurus Assemblage::Assemble(const DocumentImprime& document)
{
    thesaurus_.Edition = document.Edition;
    thesaurus_.VoiesLocales = document.VoiesLocales;
    thesaurus_.Bilan.SansNiveau = document.CotesSansTitre;
    for (const TitreImprime& titre : document.Titres) {
        Entree(titre.Nom);
    }
    for (const TitreImprime& titre : document.Titres) {
        LitTitre(titre);
    }
    for (const TitreImprime& titre : document.Titres) {
        LitRenvois(titre);
        LitCotes(titre);
    }
    for (const Composee& composee : ClassesComposees()) {
        const int classe = thesaurus_.Place(composee.Classe);
        for (const QString& nom : composee.Membres) {
            const int membre = thesaurus_.Place(nom);
            if (classe >= 0 && membre >= 0) {
                Rattache(classe, membre);
            }
        }
    }
    Controle();
    return thesaurus_;
}

} // namespace

int Thesaurus::Place(const QString& nom) const
{
    return ParCle.value(CleDeNom(nom), -1);
}

Thesaurus LitThesaurus(QByteArrayView texte)
{
    return Assemblage().Assemble(LitDocument(texte));
}

} // namespace banque
