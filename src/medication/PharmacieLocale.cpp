#include "medication/PharmacieLocale.h"

#include "common/Tolere.h"
#include "medication/Tri.h"
#include "medication/messages.h"
#include "outside/Boites.h"
#include "storage/Base.h"
#include "storage/Jeu.h"

namespace medication {

namespace {

// Columns of `BddMed`.
constexpr int kNum = 0;
constexpr int kNotes = 3;
constexpr int kPosologie = 4;
constexpr int kNom = 5;

storage::Jeu LigneDe(storage::Base& base, const QString& etiquette)
{
    return base.Selection(QStringLiteral("BddMed"), QStringLiteral("num = ?"), {etiquette.toLongLong()});
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
    storage::Jeu table = base_().Table(QStringLiteral("BddMed"));
    noeuds.reserve(table.RecordCount());
    for (; !table.Fin(); table.MoveNext()) {
        if (table.EstNull(kNom)) {
            continue;
        }
        const QString nom = table.Texte(kNom);
        if (QStringView(nom).trimmed().isEmpty()) {
            // A shared or read-only file may refuse: the row is left out all the same.
            common::Tolere([&] { table.Delete(); });
            continue;
        }
        noeuds.append({nom, table.Texte(kNum)});
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
        boites.Stop(MessageSansNom());
        return;
    }
    storage::Jeu ligne = LigneDe(base_(), etiquette);
    if (ligne.Fin()) {
        boites.Exclamation(MessageDisparu());
        return;
    }
    if (Saisie{ligne.Texte(kNom), ligne.Texte(kPosologie)} != saisie) {
        EcritLigne(ligne, saisie);
        boites.Information(MessageModifie());
    }
}

bool PharmacieLocale::Retire(const QString& etiquette, outside::Boites& boites)
{
    storage::Jeu ligne = LigneDe(base_(), etiquette);
    if (ligne.Fin()) {
        return true;
    }
    if (!boites.Question(MessageRetire(ligne.Texte(kNom)), outside::Bouton::Non)) {
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
