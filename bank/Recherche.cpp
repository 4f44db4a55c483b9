#include "bank/Recherche.h"

#include "bank/IndexRecherche.h"
#include "bank/Mots.h"
#include "bank/Selection.h"

#include <limits>

namespace banque {

namespace {

constexpr quint32 kAbsent = std::numeric_limits<quint32>::max();
constexpr quint32 kPasEnTete = 1U << 20; ///< the first word does not begin the name
constexpr quint32 kPasEntier = 1U << 12; ///< a word is only begun

PackTrouve Lis(const QSqlQuery& rangee)
{
    PackTrouve pack;
    pack.Id = rangee.value(0).toInt();
    pack.Cis = rangee.value(1).toInt();
    pack.Cip7 = rangee.value(2).toString();
    pack.Cip13 = rangee.value(3).toString();
    pack.Nom = rangee.value(4).toString();
    pack.Prix = rangee.isNull(5) ? std::nullopt : std::optional(rangee.value(5).toDouble());
    pack.Taux = rangee.isNull(6) ? std::nullopt : std::optional(rangee.value(6).toInt());
    pack.Homeopathie = rangee.value(7).toBool();
    return pack;
}

} // namespace

Recherche::Recherche(const QSqlDatabase& base)
{
    Selection(base, QStringLiteral("select packs from recherche_noms order by rang"))
        .PourChaque(
            [this](const QSqlQuery& nom) { noms_.append({DepuisOctets(nom.value(0).toByteArray())}); });
    Selection(base, QStringLiteral("select mot, places from recherche_mots"))
        .PourChaque([this](const QSqlQuery& mot) {
            mots_.append({mot.value(0).toString(), DepuisOctets(mot.value(1).toByteArray())});
        });
    std::sort(mots_.begin(), mots_.end(), [](const Mot& a, const Mot& b) { return a.Texte < b.Texte; });
}

/// Adds to each name's note what its best word beginning so costs; names without one are absent from there
/// on.
void Recherche::Note(const QString& debut, bool premier, QList<quint32>& notes) const
{
    QList<quint32> meilleures(notes.size(), kAbsent);
    auto mot = std::lower_bound(mots_.begin(), mots_.end(), debut,
                                [](const Mot& a, const QString& texte) { return a.Texte < texte; });
    for (; mot != mots_.end() && mot->Texte.startsWith(debut); ++mot) {
        const quint32 entier = mot->Texte.size() == debut.size() ? 0 : kPasEntier;
        for (const quint32 lieu : mot->Places) {
            const quint32 place = lieu % kPlacesParNom;
            const auto rang = static_cast<qsizetype>(lieu / kPlacesParNom);
            const quint32 note = entier + place + (premier && place > 0 ? kPasEnTete : 0);
            if (rang < meilleures.size() && note < meilleures[rang]) {
                meilleures[rang] = note;
            }
        }
    }
    for (qsizetype rang = 0; rang < notes.size(); ++rang) {
        const bool absent = notes[rang] == kAbsent || meilleures[rang] == kAbsent;
        notes[rang] = absent ? kAbsent : notes[rang] + meilleures[rang];
    }
}

QList<Recherche::Trouve> Recherche::Noms(const QStringList& mots) const
{
    QList<Trouve> trouves;
    if (mots.isEmpty()) {
        return trouves;
    }
    QList<quint32> notes(noms_.size(), 0);
    for (qsizetype i = 0; i < mots.size(); ++i) {
        Note(mots[i], i == 0, notes);
    }
    for (qsizetype rang = 0; rang < notes.size(); ++rang) {
        if (notes[rang] != kAbsent) {
            trouves.append({notes[rang], static_cast<quint32>(rang)});
        }
    }
    std::sort(trouves.begin(), trouves.end(), [](const Trouve& a, const Trouve& b) {
        return std::pair(a.Note, a.Rang) < std::pair(b.Note, b.Rang);
    });
    return trouves;
}

PageTrouvee Recherche::Cherche(const QSqlDatabase& base, const QString& question, int page, int parPage) const
{
    QList<Trouve> trouves;
    for (const QStringList& lecture : Lectures(question)) {
        trouves = Noms(lecture);
        if (!trouves.isEmpty()) {
            break;
        }
    }
    PageTrouvee resultat;
    Selection packs(base, QStringLiteral("select p.id, p.cis, p.cip7, p.cip13, p.nom, p.prix_total, p.taux, "
                                         "s.homeopathie from presentations p "
                                         "join specialites s on s.cis = p.cis where p.id = ?"));
    const qint64 debut = qint64(page) * parPage;
    for (const Trouve& trouve : std::as_const(trouves)) {
        for (const quint32 id : noms_[trouve.Rang].Packs) {
            if (resultat.Total >= debut && resultat.Total < debut + parPage) {
                packs.PourChaque({id}, [&](const QSqlQuery& pack) { resultat.Packs.append(Lis(pack)); });
            }
            ++resultat.Total;
        }
    }
    return resultat;
}

} // namespace banque
