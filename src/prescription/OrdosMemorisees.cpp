#include "prescription/OrdosMemorisees.h"

#include "patients/Patient.h"
#include "storage/Base.h"
#include "storage/Jeu.h"

namespace prescription {

namespace {

constexpr qsizetype kLignesCourantes = 32;
constexpr int kIdProduit = 6; // columns of OrdoEnr
constexpr int kConverti = 7;
// What `Converti` holds of a line that nobody asks about.
constexpr int kProduit = 1;
constexpr int kCodeGarde = 2; // its code is short enough to be taken for a product id, and is none
constexpr qint64 kFinDesCodesCourts = 10'000'000'000;

QString Liste()
{
    return QStringLiteral("ListeOrdos");
}

QString Lignes()
{
    return QStringLiteral("OrdoEnr");
}

/// The condition that a key stands for, and its values.
struct Condition
{
    QString Texte;
    QVariantList Valeurs;
};

Condition DansListe(const CleMemo& cle)
{
    if (cle.Generique()) {
        return {QStringLiteral("Titre = ? and NomPatient = '*'"), {cle.Titre}};
    }
    return {QStringLiteral("Titre = ? and NomPatient = ? and Datenais = ?"),
            {cle.Titre, cle.NomPatient, cle.Datenais}};
}

Condition DansLignes(const CleMemo& cle)
{
    if (cle.Generique()) {
        return {QStringLiteral("Titre = ? and Patient = '*'"), {cle.Titre}};
    }
    return {QStringLiteral("Titre = ? and Patient = ? and Datenais = ?"),
            {cle.Titre, cle.NomPatient, cle.Datenais}};
}

int SupprimeLignes(storage::Base& medoc, const CleMemo& cle)
{
    const Condition condition = DansLignes(cle);
    return medoc.SupprimeOu(Lignes(), condition.Texte, condition.Valeurs);
}

void InscritDansListe(storage::Base& medoc, const Memorisee& memorisee)
{
    const CleMemo& cle = memorisee.Cle;
    medoc.Execute(
        QStringLiteral("insert into ListeOrdos (Titre, NomPatient, ALD, Datenais) values (?, ?, ?, ?)"),
        {cle.Titre, cle.NomPatient, memorisee.ALD, cle.Datenais});
}

int ConvertiDe(const LigneMemorisee& ligne)
{
    return ligne.EstUnCode && ligne.IdProduit < kFinDesCodesCourts ? kCodeGarde : kProduit;
}

void AjouteLignes(storage::Base& medoc, const CleMemo& cle, const QList<LigneMemorisee>& lignes)
{
    for (const LigneMemorisee& ligne : lignes) {
        medoc.Execute(
            QStringLiteral("insert into OrdoEnr (Titre, TitreLigne, Posologie, Zone, Patient, Datenais, "
                           "IdProduit, Converti) values (?, ?, ?, ?, ?, ?, ?, ?)"),
            {cle.Titre, ligne.TitreLigne, ligne.Posologie, ligne.Zone, cle.NomPatient, cle.Datenais,
             ligne.IdProduit, ConvertiDe(ligne)});
    }
}

/// The columns are `TitreLigne`, `Posologie`, `Zone`, `IdProduit`, `Converti`.
LigneMemorisee LigneDe(const storage::Rangee& rangee)
{
    const qint64 idProduit = rangee.Entier(3);
    const bool sansProduit = rangee.Entier(4) != kProduit;
    return {rangee.Texte(0),
            rangee.Texte(1),
            rangee.Entier(2) == 2 ? 2 : 1,
            idProduit == 0 && rangee.EstNull(3) ? 1 : idProduit,
            sansProduit && rangee.Texte(4).contains(u'0'),
            sansProduit && idProduit > 1};
}

/// What a line of an old version is given; nothing when the bank does not know its code.
struct Nouveau
{
    bool Connu = true;
    std::optional<qint32> IdProduit;
};

Nouveau NouveauDe(const storage::Jeu& ligne, const drugbank::ResolutionCip& produitDuCip)
{
    const QString code = ligne.Texte(kIdProduit);
    const bool aucun = code.isEmpty() || code == QLatin1String("0") || code == QLatin1String("1");
    if (aucun) {
        return {};
    }
    const std::optional<qint32> produit = produitDuCip ? produitDuCip(code) : std::nullopt;
    return {produit.has_value(), produit};
}

void EcritNouveau(storage::Jeu& ligne, const Nouveau& nouveau)
{
    ligne.Edit();
    if (nouveau.IdProduit) {
        ligne.Ecris(kIdProduit, *nouveau.IdProduit);
    }
    ligne.Ecris(kConverti, kProduit);
    ligne.Update();
}

} // namespace

QList<Memorisee> ListeMemorisees(storage::Base& medoc, const patients::Patient& patient)
{
    QList<Memorisee> liste;
    const auto lit = [&](const storage::Rangee& rangee) {
        const CleMemo cle{rangee.Texte(0), rangee.Texte(1), rangee.Texte(3)};
        liste.append({cle, static_cast<quint8>(rangee.Entier(2) != 0)});
    };
    medoc.Parcourt(QStringLiteral("select Titre, NomPatient, ALD, Datenais from ListeOrdos "
                                  "where NomPatient = ? and Datenais = ? or NomPatient = '*' order by rowid"),
                   {patient.PatientCourant, patient.DateNaissance}, lit);
    return liste;
}

QList<LigneMemorisee> LitMemorisee(storage::Base& medoc, const CleMemo& cle)
{
    QList<LigneMemorisee> lignes;
    lignes.reserve(kLignesCourantes);
    const Condition condition = DansLignes(cle);
    medoc.Parcourt(
        QStringLiteral("select TitreLigne, Posologie, Zone, IdProduit, Converti from OrdoEnr where ") +
            condition.Texte + QStringLiteral(" order by rowid"),
        condition.Valeurs, [&](const storage::Rangee& rangee) { lignes.append(LigneDe(rangee)); });
    return lignes;
}

bool EstMemorisee(storage::Base& medoc, const CleMemo& cle)
{
    const Condition condition = DansListe(cle);
    return !medoc.Selection(Liste(), condition.Texte, condition.Valeurs).Fin();
}

void AjouteMemorisee(storage::Base& medoc, const Memorisee& memorisee, const QList<LigneMemorisee>& lignes)
{
    storage::Transaction transaction(medoc);
    InscritDansListe(medoc, memorisee);
    AjouteLignes(medoc, memorisee.Cle, lignes);
    transaction.Valide();
}

void RemplaceMemorisee(storage::Base& medoc, const Memorisee& memorisee, const QList<LigneMemorisee>& lignes)
{
    const Condition condition = DansListe(memorisee.Cle);
    storage::Transaction transaction(medoc);
    SupprimeLignes(medoc, memorisee.Cle);
    AjouteLignes(medoc, memorisee.Cle, lignes);
    if (!EstMemorisee(medoc, memorisee.Cle)) {
        InscritDansListe(medoc, memorisee); // another station has just deleted it
    }
    medoc.Execute(QStringLiteral("update ListeOrdos set ALD = ? where ") + condition.Texte,
                  QVariantList{memorisee.ALD} + condition.Valeurs);
    transaction.Valide();
}

void SupprimeMemorisee(storage::Base& medoc, const CleMemo& cle)
{
    const Condition condition = DansListe(cle);
    storage::Transaction transaction(medoc);
    medoc.SupprimeOu(Liste(), condition.Texte, condition.Valeurs);
    SupprimeLignes(medoc, cle);
    transaction.Valide();
}

void MarqueConvertie(storage::Base& medoc, const CleMemo& cle)
{
    const Condition condition = DansLignes(cle);
    storage::Transaction transaction(medoc);
    medoc.Execute(QStringLiteral("update OrdoEnr set Converti = case when ifnull(Converti, 0) <> ? and "
                                 "IdProduit > 1 and IdProduit < ? then ? else ? end where ") +
                      condition.Texte,
                  QVariantList{kProduit, kFinDesCodesCourts, kCodeGarde, kProduit} + condition.Valeurs);
    transaction.Valide();
}

Conversion ConvertitMemorisee(storage::Base& medoc, const CleMemo& cle,
                              const drugbank::ResolutionCip& produitDuCip)
{
    Conversion conversion;
    const Condition condition = DansLignes(cle);
    storage::Transaction transaction(medoc);
    storage::Jeu lignes = medoc.Selection(Lignes(), condition.Texte, condition.Valeurs);
    for (; !lignes.Fin(); lignes.MoveNext()) {
        if (lignes.Texte(kConverti) == QString::number(kProduit)) {
            continue;
        }
        const Nouveau nouveau = NouveauDe(lignes, produitDuCip);
        if (nouveau.Connu) {
            EcritNouveau(lignes, nouveau);
        }
        ++(nouveau.Connu ? conversion.Converties : conversion.Inconnues);
    }
    transaction.Valide();
    return conversion;
}

} // namespace prescription
