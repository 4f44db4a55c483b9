#include "upgrade/RecopieMedoc.h"

#include "upgrade/Champs.h"
#include "upgrade/DatesNaissance.h"
#include "upgrade/Recopie.h"

namespace upgrade {

using storage::Cite;
using storage::Table;
using storage::TypeColonne;

namespace {

constexpr int kMedoc = 0;
constexpr int kRacine = 1;
constexpr int kColonnesPatients = 11;
constexpr int kColonnesPatientsRacine = 9;

const QString kEtoile = QStringLiteral("'*'");
const QString kSansDate = QStringLiteral("'0'");
const QString kVide = QStringLiteral("''");

/// The first columns of a table as they stand.
QStringList ChampsTels(const Table& depuis, const Table& vers, qsizetype nombre)
{
    QStringList champs;
    for (qsizetype i = 0; i < nombre; ++i) {
        champs.append(Champ(depuis, i, vers.Colonnes[i].Type));
    }
    return champs;
}

struct Copieur
{
    Recopie& Vers;
    const Source& Medoc;
    const Source* Racine;

    QString Texte(const Table& depuis, qsizetype position) const
    {
        return Champ(depuis, position, TypeColonne::Texte);
    }
    QString Entier(const Table& depuis, qsizetype position) const
    {
        return Champ(depuis, position, TypeColonne::Entier);
    }
    QString NomListe(const Table& liste) const { return NomEspace(SinonVide(Texte(liste, 1), kEtoile)); }
    QString NomLigne(const Table& lignes) const { return NomEspace(SinonVide(Texte(lignes, 4), kEtoile)); }

    void BddMed() const;
    QString DateListe(const Table& liste) const { return SinonNul(Texte(liste, 3), kSansDate); }
    static QString Date(const QString& nom, const QString& date, bool repare)
    {
        return repare ? DateRepare(nom, date) : date;
    }
    void ListeOrdos(bool repare) const;
    void OrdoEnr(bool repare) const;
    void TextesJamaisNuls(const QString& nom, qsizetype colonnes) const;
    void Patients(int rang, const Source& source, qsizetype colonnes) const;
    bool ChercheDates() const;
};

void Copieur::BddMed() const
{
    const QString nom = QStringLiteral("BddMed");
    if (const Table* depuis = Medoc.ChercheTable(nom)) {
        Vers.Copie(kMedoc, *depuis, nom, ChampsTels(*depuis, Vers.Destination(nom), 6));
    }
}

void Copieur::ListeOrdos(bool repare) const
{
    const QString nom = QStringLiteral("ListeOrdos");
    if (const Table* depuis = Medoc.ChercheTable(nom)) {
        Vers.Copie(kMedoc, *depuis, nom,
                   {Texte(*depuis, 0), NomListe(*depuis), SinonNul(Entier(*depuis, 2), QStringLiteral("0")),
                    Date(NomListe(*depuis), DateListe(*depuis), repare)});
    }
}

void Copieur::OrdoEnr(bool repare) const
{
    const QString nom = QStringLiteral("OrdoEnr");
    if (const Table* depuis = Medoc.ChercheTable(nom)) {
        const QString date = SinonNul(Texte(*depuis, 5), kSansDate);
        const QString converti = Entier(*depuis, 7);
        Vers.Copie(kMedoc, *depuis, nom,
                   {Texte(*depuis, 0), Texte(*depuis, 1), Texte(*depuis, 2),
                    SinonNul(Entier(*depuis, 3), QStringLiteral("1")), NomLigne(*depuis),
                    Date(NomLigne(*depuis), date, repare), IdProduit(Entier(*depuis, 6), converti),
                    converti});
    }
}

/// A table whose columns are texts that are never null. One that is missing keeps none of the others back:
/// what a doctor has written into them would be gone with the backup, at the upgrade after this one.
void Copieur::TextesJamaisNuls(const QString& nom, qsizetype colonnes) const
{
    const Table* depuis = Medoc.ChercheTable(nom);
    if (!depuis) {
        return;
    }
    QStringList champs;
    for (qsizetype i = 0; i < colonnes; ++i) {
        champs.append(SinonNul(Texte(*depuis, i), kVide));
    }
    Vers.Copie(kMedoc, *depuis, nom, champs);
}

/// The number of a patient is his key. One whose number another patient bears, or who has none, gets a new
/// one; he would be lost. One who stands there already is not copied twice.
void Copieur::Patients(int rang, const Source& source, qsizetype colonnes) const
{
    const QString nom = QStringLiteral("Patients");
    const Table* depuis = source.ChercheTable(nom);
    if (!depuis) {
        return;
    }
    const Table& vers = Vers.Destination(nom);
    const QStringList champs = ChampsTels(*depuis, vers, colonnes);
    const QString de = TableDe(rang, *depuis);
    Vers.Execute(QStringLiteral("insert or ignore into main.Patients (%1) select %2 from %3 s "
                                "where %4 is not null order by s.rowid")
                     .arg(Colonnes(vers, colonnes), champs.join(QLatin1String(", ")), de, champs[0]));
    Vers.Execute(
        QStringLiteral("insert into main.Patients (%1) select %2 from %3 s where not exists (select 1 from "
                       "main.Patients p where p.\"Index\" = %4 and p.NomPatient is %5 and p.Datenais is "
                       "%6) order by s.rowid")
            .arg(Colonnes(vers, colonnes),
                 (QStringList{QStringLiteral("null")} + champs.mid(1)).join(QLatin1String(", ")), de,
                 champs[0], champs[2], champs[3]));
}

/// Looks for the dates before the rows go over with them.
bool Copieur::ChercheDates() const
{
    const Table* liste = Medoc.ChercheTable(QStringLiteral("ListeOrdos"));
    const Table* lignes = Medoc.ChercheTable(QStringLiteral("OrdoEnr"));
    const auto rangees = [](const Table& table) { return TableDe(kMedoc, table) + QStringLiteral(" s"); };
    if (!liste || !DatesARepare(Vers, rangees(*liste), NomListe(*liste), DateListe(*liste))) {
        return false;
    }
    const QString select = QStringLiteral("select %1 from %2");
    QStringList selects{select.arg(NomListe(*liste), rangees(*liste))};
    if (lignes) {
        selects.append(select.arg(NomLigne(*lignes), rangees(*lignes)));
    }
    PrepareDates(Vers, selects);
    return true;
}

} // namespace

bool RecopieMedoc(const QString& copie, const Source& medoc, const Source* racine, Suivi& suivi)
{
    QList<const Source*> sources{&medoc};
    if (racine) {
        sources.append(racine);
    }
    Recopie vers(copie, storage::GenreBase::Medoc, sources, suivi);
    const Copieur copieur{vers, medoc, racine};
    copieur.BddMed();
    copieur.TextesJamaisNuls(QStringLiteral("Vidal"), 2);
    copieur.TextesJamaisNuls(QStringLiteral("Biblio"), 2);
    copieur.TextesJamaisNuls(QStringLiteral("MedUtile"), 1);
    copieur.Patients(kMedoc, medoc, kColonnesPatients);
    if (racine) {
        copieur.Patients(kRacine, *racine, kColonnesPatientsRacine);
    }
    const bool repare = copieur.ChercheDates();
    copieur.ListeOrdos(repare);
    copieur.OrdoEnr(repare);
    vers.Valide();
    return repare;
}

} // namespace upgrade
