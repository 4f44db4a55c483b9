#include "medication/PharmacieLocale.h"

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
constexpr int kNotes = 3;
constexpr int kPosologie = 4;
constexpr int kNom = 5;

storage::Jeu LigneDe(storage::Base& base, const QString& etiquette)
{
    return base.Selection(kTable, QStringLiteral("num = ?"), {etiquette.toLongLong()});
}

void EcritLigne(storage::Jeu& ligne, const Saisie& saisie)
{
    ligne.Edit();
    ligne.Ecris(kPosologie, saisie.TxtPoso);
    ligne.Ecris(kNom, saisie.TxtMedoc);
    ligne.Update();
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

void PharmacieLocale::Enregistre(const QString& etiquette, const Saisie& saisie, outside::Boites& boites)
{
    if (saisie.TxtMedoc.trimmed().isEmpty()) {
        boites.Stop(messages::SansNom());
        return;
    }
    storage::Jeu ligne = LigneDe(base_(), etiquette);
    if (ligne.Fin()) {
        boites.Exclamation(messages::Disparu());
        return;
    }
    if (Saisie{ligne.Texte(kNom), ligne.Texte(kPosologie)} != saisie) {
        EcritLigne(ligne, saisie);
        boites.Information(messages::Modifie());
    }
}

bool PharmacieLocale::Retire(const QString& etiquette, outside::Boites& boites)
{
    storage::Jeu ligne = LigneDe(base_(), etiquette);
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

} // namespace medication
