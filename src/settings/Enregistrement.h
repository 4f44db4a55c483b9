#pragma once

#include "settings/Lecteur.h"

#include <tuple>
#include <type_traits>

namespace settings {

/// The text form of a field.
QByteArray TexteChamp(const QString& champ);
QByteArray TexteChamp(float champ);
template <typename Entier>
requires std::is_integral_v<Entier> QByteArray TexteChamp(Entier champ)
{
    return QByteArray::number(static_cast<qlonglong>(champ));
}

/// The text as a record gives it back.
QString TexteTenu(const QString& texte);

/// True when a text comes back as it is from a record: no double quote, no line end, all of Windows-1252.
bool TientDansEnregistrement(QStringView texte);

/// Reads a record over the fields.
template <typename... Champs> Lecture LitChamps(QByteArrayView octets, std::tuple<Champs&...> champs)
{
    Lecteur lecteur(octets);
    std::apply([&](auto&... champ) { (lecteur.Lit(champ), ...); }, champs);
    return lecteur.Etat();
}

/// The record of the fields, with its line end. A double quote in a text becomes an apostrophe and a
/// control character a blank, since the format cannot hold them.
template <typename... Champs> QByteArray TexteEnregistrement(std::tuple<Champs&...> champs)
{
    QByteArray ligne;
    std::apply([&](auto&... champ) { ((ligne += TexteChamp(champ) + ','), ...); }, champs);
    ligne.chop(1);
    return ligne + "\r\n";
}

/// The bytes of a record file; a null array when there is none, and a NUL when it cannot be read.
QByteArray OctetsEnregistrement(const QString& chemin);

/// Keeps a damaged file beside as "NAME.abime"; one that stood there before becomes "NAME.abime.2", "...3".
/// Throws `Erreur`.
void GardeAbime(const QString& chemin);

/// Writes a record file whole. Throws `Erreur`.
void EcritOctets(const QString& chemin, const QByteArray& octets);

/// Reads a record file over the fields. Raises nothing.
template <typename... Champs> Lecture LitEnregistrement(const QString& chemin, std::tuple<Champs&...> champs)
{
    const QByteArray octets = OctetsEnregistrement(chemin);
    return octets.isNull() ? Lecture::Absente : LitChamps(octets, champs);
}

/// Writes a record file; a damaged former one is kept beside, one that reads the same already is left
/// alone. Throws `Erreur`.
template <typename... Champs> void EcritEnregistrement(const QString& chemin, std::tuple<Champs&...> champs)
{
    const QByteArray aEcrire = TexteEnregistrement(champs);
    const QByteArray ancien = OctetsEnregistrement(chemin);
    if (ancien == aEcrire) {
        return;
    }
    std::tuple<std::remove_const_t<Champs>...> brouillon;
    const auto references = std::apply([](auto&... champ) { return std::tie(champ...); }, brouillon);
    if (!ancien.isNull() && LitChamps(ancien, references) == Lecture::Abimee) {
        GardeAbime(chemin);
    }
    EcritOctets(chemin, aEcrire);
}

} // namespace settings
