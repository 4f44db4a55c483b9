#include "storage/Schema.h"

namespace storage {

namespace {

constexpr int kMarqueMedoc = 0x5363724D; // "ScrM"
constexpr int kMarqueOrdo = 0x5363724F;  // "ScrO"

Colonne Compteur(const char16_t* nom)
{
    return {QString::fromUtf16(nom), TypeColonne::Compteur};
}

Colonne Texte(const char16_t* nom)
{
    return {QString::fromUtf16(nom), TypeColonne::Texte};
}

Colonne Entier(const char16_t* nom)
{
    return {QString::fromUtf16(nom), TypeColonne::Entier};
}

Colonne Simple(const char16_t* nom)
{
    return {QString::fromUtf16(nom), TypeColonne::Simple};
}

Colonne OuiNon(const char16_t* nom)
{
    return {QString::fromUtf16(nom), TypeColonne::OuiNon};
}

QList<Table> TablesMedoc()
{
    return {
        {QStringLiteral("Patients"),
         {Compteur(u"Index"), Texte(u"Titre"), Texte(u"NomPatient"), Texte(u"Datenais"), Texte(u"Poids"),
          Texte(u"Precautions"), Texte(u"Notes"), Texte(u"Antecedents"), Texte(u"Adresse"),
          Texte(u"Telephone1"), Texte(u"Telephone2")}},
        {QStringLiteral("ListeOrdos"),
         {Texte(u"Titre"), Texte(u"NomPatient"), Entier(u"ALD"), Texte(u"Datenais")}},
        {QStringLiteral("OrdoEnr"),
         {Texte(u"Titre"), Texte(u"TitreLigne"), Texte(u"Posologie"), Entier(u"Zone"), Texte(u"Patient"),
          Texte(u"Datenais"), Entier(u"IdProduit"), Entier(u"Converti")}},
        {QStringLiteral("BddMed"),
         {Entier(u"num"), Texte(u"Champ1"), Texte(u"Champ2"), Texte(u"Notes"), Texte(u"Posologie"),
          Texte(u"Nom")}},
        {QStringLiteral("Biblio"), {Texte(u"Titre"), Texte(u"Posologie")}},
        {QStringLiteral("Vidal"), {Texte(u"CIP"), Texte(u"Posologie")}},
        {QStringLiteral("MedUtile"), {Texte(u"CIP")}},
    };
}

QList<Table> TablesOrdo()
{
    return {
        {QStringLiteral("Entete"),
         {Entier(u"NumLigne"), Texte(u"Texte"), Texte(u"Police"), Simple(u"Taille"), OuiNon(u"Gras"),
          OuiNon(u"Italique"), OuiNon(u"Souligne"), Entier(u"Espaces")}},
        {QStringLiteral("Misenpage"),
         {Entier(u"NumLigne"), Texte(u"Police"), Simple(u"Taille"), OuiNon(u"Gras"), OuiNon(u"Italique"),
          OuiNon(u"Souligne")}},
        {QStringLiteral("CouleurPET"), {Entier(u"Couleur")}},
        {QStringLiteral("Certificat"),
         {Texte(u"Police"), Simple(u"Taille"), OuiNon(u"Gras"), OuiNon(u"Italique"), OuiNon(u"Souligne")}},
    };
}

Index IndexDe(const char16_t* nom, const char16_t* table, std::initializer_list<const char16_t*> colonnes,
              bool sansCasse = false)
{
    Index index{QString::fromUtf16(nom), QString::fromUtf16(table), {}, sansCasse};
    for (const char16_t* colonne : colonnes) {
        index.Colonnes.append(QString::fromUtf16(colonne));
    }
    return index;
}

QList<Index> IndexesMedoc()
{
    return {IndexDe(u"OrdoEnrTitre", u"OrdoEnr", {u"Titre", u"Patient"}),
            IndexDe(u"ListeOrdosPatient", u"ListeOrdos", {u"NomPatient"}),
            IndexDe(u"OrdoEnrTitreLigne", u"OrdoEnr", {u"TitreLigne", u"Posologie"}, true),
            IndexDe(u"BddMedNom", u"BddMed", {u"Nom"}, true),
            IndexDe(u"BiblioTitre", u"Biblio", {u"Titre"}, true),
            IndexDe(u"VidalCIP", u"Vidal", {u"CIP"})};
}

QString TypeSql(TypeColonne type)
{
    switch (type) {
    case TypeColonne::Compteur:
        return QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
    case TypeColonne::Texte:
        return QStringLiteral("TEXT");
    case TypeColonne::Entier:
        return QStringLiteral("INTEGER");
    case TypeColonne::Simple:
        return QStringLiteral("REAL");
    case TypeColonne::OuiNon:
        return QStringLiteral("BOOLEAN DEFAULT 0");
    }
    return {};
}

} // namespace

int MarqueApplication(GenreBase genre)
{
    return genre == GenreBase::Medoc ? kMarqueMedoc : kMarqueOrdo;
}

const QList<Table>& Tables(GenreBase genre)
{
    static const QList<Table> medoc = TablesMedoc();
    static const QList<Table> ordo = TablesOrdo();
    return genre == GenreBase::Medoc ? medoc : ordo;
}

const QList<Index>& Indexes(GenreBase genre)
{
    static const QList<Index> medoc = IndexesMedoc();
    static const QList<Index> ordo;
    return genre == GenreBase::Medoc ? medoc : ordo;
}

QString CreeTableSql(const Table& table)
{
    QStringList colonnes;
    for (const Colonne& colonne : table.Colonnes) {
        colonnes.append(Cite(colonne.Nom) + u' ' + TypeSql(colonne.Type));
    }
    return QStringLiteral("create table %1 (%2)").arg(Cite(table.Nom), colonnes.join(QLatin1String(", ")));
}

TypeColonne TypeDeclare(const QString& declaration, bool cle)
{
    if (declaration == QLatin1String("INTEGER")) {
        return cle ? TypeColonne::Compteur : TypeColonne::Entier;
    }
    if (declaration == QLatin1String("REAL")) {
        return TypeColonne::Simple;
    }
    return declaration == QLatin1String("BOOLEAN") ? TypeColonne::OuiNon : TypeColonne::Texte;
}

QString CreeIndexSql(const Index& index)
{
    QStringList colonnes;
    for (const QString& colonne : index.Colonnes) {
        colonnes.append(Cite(colonne) +
                        (index.SansCasse ? QLatin1String(" collate nocase") : QLatin1String()));
    }
    return QStringLiteral("create index if not exists %1 on %2 (%3)")
        .arg(Cite(index.Nom), Cite(index.Table), colonnes.join(QLatin1String(", ")));
}

QString Cite(const QString& nom)
{
    return u'"' + QString(nom).replace(u'"', QLatin1String("\"\"")) + u'"';
}

} // namespace storage
