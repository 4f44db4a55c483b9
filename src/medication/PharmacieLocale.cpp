#include "medication/PharmacieLocale.h"

#include "common/Capitales.h"
#include "common/Tolere.h"
#include "medication/Tri.h"
#include "medication/messages.h"
#include "outside/Boites.h"
#include "storage/Base.h"
#include "storage/Jeu.h"
#include "storage/Textes.h"

namespace medication {

namespace {

const QLatin1String kTable("BddMed");

// Its columns.
constexpr int kNum = 0;
constexpr int kNotes = 3;
constexpr int kPosologie = 4;
constexpr int kNom = 5;

storage::Jeu LigneDe(storage::Base& base, const QString& etiquette)
{
    return base.Selection(kTable, QStringLiteral("num = ?"), {etiquette.toLongLong()});
}

void EcritLigne(storage::Jeu& ligne, const Saisie& saisie)
{
    ligne.Ecris(kPosologie, saisie.TxtPoso);
    ligne.Ecris(kNom, saisie.TxtMedoc);
    ligne.Update();
}

qint64 NumeroLibre(storage::Base& base)
{
    qint64 plusGrand = 0;
    base.Parcourt(QStringLiteral("select max(num) from BddMed"), {},
                  [&](const storage::Rangee& rangee) { plusGrand = std::max(plusGrand, rangee.Entier(0)); });
    return plusGrand + 1;
}

} // namespace

QList<Noeud> PharmacieLocale::Charge(const QString&)
{
    QList<Noeud> noeuds;
    bool sansNom = false;
    storage::Base& base = base_();
    const storage::Textes noms = base.LitTextes(kTable, QStringLiteral("num"), QStringLiteral("Nom"));
    for (const storage::Textes::Rangee& rangee : noms.Rangees) {
        const QStringView nom = noms.Texte(rangee);
        if (nom.trimmed().isEmpty()) {
            sansNom = true;
        } else {
            noeuds.append({nom.toString(), QString::number(rangee.Cle)});
        }
    }
    if (sansNom) {
        // A read-only or shared file may refuse: those rows are left out all the same.
        common::Tolere(
            [&] { base.SupprimeOu(kTable, QStringLiteral("Nom is not null and trim(Nom) = ''"), {}); });
    }
    Trie(noeuds);
    return noeuds;
}

std::optional<Saisie> PharmacieLocale::Lit(const Noeud& noeud)
{
    const storage::Jeu ligne = LigneDe(base_(), noeud.Etiquette);
    if (ligne.Fin()) {
        return std::nullopt;
    }
    return Saisie{ligne.EstNull(kNom) ? noeud.Texte : ligne.Texte(kNom), ligne.Texte(kPosologie)};
}

std::optional<QString> PharmacieLocale::Notes(const QString& etiquette)
{
    const storage::Jeu ligne = LigneDe(base_(), etiquette);
    if (ligne.Fin() || ligne.EstNull(kNotes)) {
        return std::nullopt;
    }
    return ligne.Texte(kNotes);
}

void PharmacieLocale::Enregistre(Noeud& noeud, const Saisie& saisie, outside::Boites& boites)
{
    if (saisie.TxtMedoc.trimmed().isEmpty()) {
        boites.Stop(messages::SansNom());
        return;
    }
    storage::Jeu ligne = LigneDe(base_(), noeud.Etiquette);
    if (ligne.Fin()) {
        boites.Exclamation(messages::Disparu());
        return;
    }
    if (Saisie{ligne.Texte(kNom), ligne.Texte(kPosologie)} != saisie) {
        ligne.Edit();
        EcritLigne(ligne, saisie);
        boites.Information(messages::Modifie());
    }
}

bool PharmacieLocale::Retire(const Noeud& noeud, const QString&, outside::Boites& boites)
{
    storage::Jeu ligne = LigneDe(base_(), noeud.Etiquette);
    if (ligne.Fin()) {
        return true;
    }
    if (!boites.Question(messages::Retire(ligne.Texte(kNom)), outside::Bouton::Non)) {
        return false;
    }
    ligne.Delete();
    return true;
}

QString PharmacieLocale::Identifiant(const Noeud*) const
{
    return QStringLiteral("1");
}

void PharmacieLocale::Ajoute(const Saisie& saisie)
{
    storage::Base& base = base_();
    storage::Transaction transaction(base);
    storage::Jeu ligne = base.Selection(kTable, QStringLiteral("1 = 0"), {});
    const qint64 numero = NumeroLibre(base);
    ligne.AddNew();
    ligne.Ecris(kNum, numero);
    EcritLigne(ligne, {common::EnCapitales(saisie.TxtMedoc), saisie.TxtPoso});
    transaction.Valide();
}

} // namespace medication
