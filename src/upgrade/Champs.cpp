#include "upgrade/Champs.h"

namespace upgrade {

using storage::Cite;
using storage::TypeColonne;

namespace {

/// A text that is wholly a number with a decimal comma, as a number; null for any other.
QString NombreDuTexte(const QString& champ)
{
    return QStringLiteral("case when trim(%1) glob '*[0-9]*' and ltrim(trim(%1), '+-') not glob '*[^0-9,]*' "
                          "and length(ltrim(trim(%1), '+-')) >= length(trim(%1)) - 1 "
                          "and length(replace(%1, ',', '')) >= length(%1) - 1 "
                          "then cast(replace(trim(%1), ',', '.') as real) end")
        .arg(champ);
}

/// The nearest whole number, halves to the even one.
QString Arrondi(const QString& nombre)
{
    return QStringLiteral("case when abs(%1 - cast(%1 as integer)) = 0.5 "
                          "then 2 * cast(round(%1 / 2.0) as integer) else cast(round(%1) as integer) end")
        .arg(nombre);
}

QString Nombre(const QString& champ)
{
    return QStringLiteral("(case typeof(%1) when 'integer' then %1 when 'real' then %1 when 'null' then null "
                          "else %2 end)")
        .arg(champ, NombreDuTexte(champ));
}

QString Entier(const QString& champ)
{
    return QStringLiteral("(case typeof(%1) when 'integer' then %1 when 'null' then null "
                          "else (select %2 from (select %3 as nombre)) end)")
        .arg(champ, Arrondi(QStringLiteral("nombre")), Nombre(champ));
}

/// A number as the doctor writes it.
QString TexteDuNombre(const QString& champ)
{
    return QStringLiteral(
               "(case typeof(%1) when 'real' then replace(printf('%.15g', %1), '.', ',') else %1 end)")
        .arg(champ);
}

} // namespace

QString Champ(const storage::Table& source, qsizetype position, TypeColonne type)
{
    if (position >= source.Colonnes.size()) {
        return QStringLiteral("null");
    }
    const storage::Colonne& colonne = source.Colonnes[position];
    const QString champ = QStringLiteral("s.") + Cite(colonne.Nom);
    switch (type) {
    case TypeColonne::Texte:
        return colonne.Type == TypeColonne::Texte ? champ : TexteDuNombre(champ);
    case TypeColonne::Simple:
        return Nombre(champ);
    case TypeColonne::OuiNon:
        return QStringLiteral("ifnull(%1 <> 0, 0)").arg(Nombre(champ));
    case TypeColonne::Compteur:
    case TypeColonne::Entier:
        break;
    }
    return Entier(champ);
}

QString SinonNul(const QString& champ, const QString& sinon)
{
    return QStringLiteral("ifnull(%1, %2)").arg(champ, sinon);
}

QString SinonVide(const QString& champ, const QString& sinon)
{
    return QStringLiteral("ifnull(nullif(%1, ''), %2)").arg(champ, sinon);
}

QString NomEspace(const QString& champ)
{
    return QStringLiteral("replace(replace(%1, '  ', ' '), ' ', '  ')").arg(champ);
}

QString IdProduit(const QString& champ, const QString& converti)
{
    return QStringLiteral(
               "case when %2 is null then 0 else "
               "(select case when id is null then 0 "
               "when id between -2147483648 and 2147483647 then id end from (select %1 as id)) end")
        .arg(champ, converti);
}

} // namespace upgrade
