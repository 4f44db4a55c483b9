#include "bank/bibliotheque/Verification.h"

#include "bank/Selection.h"
#include "bank/bibliotheque/Session.h"
#include "bank/bibliotheque/Transcription.h"
#include "bank/bibliotheque/messages.h"
#include "common/Erreur.h"

#include <QMap>

#include <optional>

namespace banque::bibliotheque {

namespace {

/// One substance of a composition: its names and codes as an active substance and as a therapeutic fraction.
struct Substance
{
    QString Nom;
    QList<int> Codes;
};

/// A prescribed product as the bank knows it.
struct Prescrit
{
    Entier Id = 0;
    QString Nom;
    QString Voies;
    bool Homeopathie = false;
    QList<Substance> Substances;
};

/// Some medications are made for homeopathy without being registered for it.
bool Diluees(const QList<Substance>& substances)
{
    return !substances.isEmpty() && std::ranges::all_of(substances, [](const Substance& substance) {
        return substance.Nom.contains(QStringLiteral("HOMÉOPATH"), Qt::CaseInsensitive);
    });
}

/// Reads the products of a prescription one after the other.
class LecteurPrescription
{
public:
    explicit LecteurPrescription(const QSqlDatabase& base)
        : specialites_(base, QStringLiteral("select nom, voies, homeopathie from specialites where cis = ?")),
          compositions_(base,
                        QStringLiteral("select element, lien, code, nom from compositions where cis = ? "
                                       "order by nature = 'FT', rowid"))
    {}

    /// Nothing for a product that the bank lacks.
    std::optional<Prescrit> Lit(Entier cis)
    {
        std::optional<Prescrit> prescrit;
        specialites_.PourChaque({cis}, [&](const QSqlQuery& rangee) {
            prescrit = {
                cis, rangee.value(0).toString(), rangee.value(1).toString(), rangee.value(2).toBool(), {}};
        });
        if (prescrit) {
            prescrit->Substances = Substances(cis);
            prescrit->Homeopathie = prescrit->Homeopathie || Diluees(prescrit->Substances);
        }
        return prescrit;
    }

private:
    /// The SA and FT of one link number of one element are one substance.
    QList<Substance> Substances(Entier cis)
    {
        QMap<QPair<QString, int>, Substance> substances;
        compositions_.PourChaque({cis}, [&](const QSqlQuery& rangee) {
            Substance& substance = substances[{rangee.value(0).toString(), rangee.value(1).toInt()}];
            substance.Nom = rangee.value(3).toString();
            substance.Codes.append(rangee.value(2).toInt());
        });
        return substances.values();
    }

    Selection specialites_;
    Selection compositions_;
};

/// What the thesaurus looks at. Homeopathy is left out whole: its names are those of substances, and its
/// doses are not.
ProduitAVerifier AVerifier(const Prescrit& prescrit)
{
    ProduitAVerifier produit;
    if (prescrit.Homeopathie) {
        return produit;
    }
    for (const Substance& substance : prescrit.Substances) {
        produit.Codes += substance.Codes;
    }
    const QStringList voies = prescrit.Voies.split(u';');
    for (const char* orale : {"orale", "gastrique", "gastro-entérale"}) {
        produit.Orale = produit.Orale || voies.contains(QString::fromUtf8(orale));
    }
    produit.Vaginale = voies.contains(QStringLiteral("vaginale"));
    return produit;
}

/// The names of the substances that the thesaurus knows, or does not, each once.
QStringList Noms(const Interactions& interactions, const Prescrit& prescrit, bool connues)
{
    QStringList noms;
    for (const Substance& substance : prescrit.Substances) {
        const bool connue =
            std::ranges::any_of(substance.Codes, [&](int code) { return interactions.Connait(code); });
        if (connue == connues) {
            noms.append(substance.Nom);
        }
    }
    noms.removeDuplicates();
    return noms;
}

/// The product's name and why it was not checked, or not whole; empty when it was.
QString Reserve(const Interactions& interactions, const Prescrit& prescrit)
{
    const auto nonVerifie = [&](const QString& raison) { return messages::NonVerifie(prescrit.Nom, raison); };
    if (interactions.Liste().isEmpty()) {
        return nonVerifie(messages::SansThesaurus());
    }
    if (prescrit.Homeopathie) {
        return nonVerifie(messages::Homeopathie());
    }
    if (prescrit.Substances.isEmpty()) {
        return nonVerifie(messages::SansComposition());
    }
    const QStringList connues = Noms(interactions, prescrit, true);
    const QStringList inconnues = Noms(interactions, prescrit, false);
    if (connues.isEmpty()) {
        return nonVerifie(messages::SubstancesInconnues(inconnues));
    }
    return inconnues.isEmpty() ? QString() : messages::VerifieEnPartie(prescrit.Nom, connues, inconnues);
}

/// True for what is put on the skin, in the eye or in the ear, and nowhere else.
bool EstLocal(const Prescrit& prescrit)
{
    static const QStringList locales = {QStringLiteral("cutanée"), QStringLiteral("ophtalmique"),
                                        QStringLiteral("auriculaire")};
    const QStringList voies = prescrit.Voies.split(u';');
    return std::ranges::all_of(voies, [](const QString& voie) { return locales.contains(voie); });
}

/// What the document says of local routes as a whole, for those products of a couple that have no other.
QString ReserveDesVoies(const Contenu& lu, std::initializer_list<const Prescrit*> produits)
{
    const QString regle = lu.Information(QStringLiteral("voies_locales"));
    QString reserve;
    for (const Prescrit* produit : produits) {
        if (!regle.isEmpty() && EstLocal(*produit)) {
            reserve += messages::VoieLocale(produit->Nom, produit->Voies.split(u';')) + QLatin1String("\r\n");
        }
    }
    return reserve.isEmpty() ? reserve : reserve + messages::RegleDesVoies(regle);
}

/// The source ends the block that the program makes of a couple: behind the advice, and behind the risk when
/// there is no advice.
Couple Decrit(const Contenu& lu, const QList<Prescrit>& prescrits, const CoupleSignale& signale)
{
    const Interactions& interactions = lu.Interactions;
    const Interaction& interaction = interactions.Liste()[signale.Interaction];
    QString risque = interaction.Risque;
    QString precaution = interaction.Precaution;
    risque.replace(u'\n', QLatin1String("\r\n"));
    QString& fin = precaution.isEmpty() ? risque : precaution;
    const QString source = lu.Information(QStringLiteral("source_thesaurus"));
    for (const QString& suite :
         {ReserveDesVoies(lu, {&prescrits[signale.ProduitA], &prescrits[signale.ProduitB]}),
          source.isEmpty() ? QString() : messages::Source(source)}) {
        fin += suite.isEmpty() ? QString() : QStringLiteral("\r\n\r\n") + suite;
    }
    const auto produit = [&](int place) {
        return FicheProduit{prescrits[place].Id, EnWindows1252(prescrits[place].Nom)};
    };
    const auto classe = [&](int entree) {
        return ClasseInteraction{entree + 1, EnWindows1252(interactions.Entrees()[entree].Nom)};
    };
    return {signale.Interaction + 1,   static_cast<Entier>(interaction.Niveau),
            EnWindows1252(risque),     EnWindows1252(precaution),
            produit(signale.ProduitA), produit(signale.ProduitB),
            classe(signale.EntreeA),   classe(signale.EntreeB)};
}

ResultatInteractions Croise(const Contenu& lu, const QSqlDatabase& base, const QList<Entier>& produits,
                            Niveau niveau)
{
    ResultatInteractions resultat;
    QList<Prescrit> prescrits;
    QList<ProduitAVerifier> aVerifier;
    LecteurPrescription lecteur(base);
    for (const Entier id : produits) {
        const std::optional<Prescrit> prescrit = lecteur.Lit(id);
        if (prescrit) {
            prescrits.append(*prescrit);
            aVerifier.append(AVerifier(*prescrit));
        }
        const QString reserve = prescrit
                                    ? Reserve(lu.Interactions, *prescrit)
                                    : messages::NonVerifie(messages::Produit(id), messages::ProduitInconnu());
        if (!reserve.isEmpty()) {
            resultat.Inconnus.push_back({id, EnWindows1252(reserve)});
        }
    }
    for (const CoupleSignale& couple : lu.Interactions.Rapport(aVerifier, niveau).Couples) {
        resultat.Couples.push_back(Decrit(lu, prescrits, couple));
    }
    return resultat;
}

ResultatInteractions TousInconnus(const QList<Entier>& produits, const QString& raison)
{
    ResultatInteractions resultat;
    for (const Entier id : produits) {
        resultat.Inconnus.push_back({id, EnWindows1252(messages::NonVerifie(messages::Produit(id), raison))});
    }
    return resultat;
}

} // namespace

ResultatInteractions Verifie(Session* session, const QList<Entier>& produits, Entier niveau)
{
    QList<Entier> uniques;
    for (const Entier id : produits) {
        if (id != 0 && !uniques.contains(id)) {
            uniques.append(id);
        }
    }
    if (!session) {
        return TousInconnus(uniques, messages::BanqueFermee());
    }
    try {
        return Croise(session->Lu(), session->Base(), uniques, Niveau(std::clamp(niveau, 0, 3)));
    } catch (const common::Erreur&) {
        return TousInconnus(uniques, messages::BanqueIllisible());
    } catch (const Refus&) {
        return TousInconnus(uniques, messages::BanqueIllisible());
    }
}

} // namespace banque::bibliotheque
