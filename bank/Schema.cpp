#include "bank/Schema.h"

namespace banque {

const QStringList& Tables()
{
    static const QStringList tables = QStringLiteral(R"(
create table information(cle text primary key, valeur text not null) without rowid;
create table specialites(cis integer primary key, nom text not null, forme text, voies text, statut text,
    procedure text, commercialisee integer not null, date_amm text, alerte text, numero_ue text, titulaires text,
    surveillance integer not null, homeopathie integer not null, dci text not null);
create table presentations(id integer primary key, cis integer not null, cip7 text not null, cip13 text not null,
    libelle text not null, nom text not null, statut text, etat text, commercialisee integer not null, date text,
    agrement integer not null, taux integer, prix real, prix_total real, honoraires real, indications text);
create table substances(code integer primary key, nom text not null);
create table substances_noms(code integer not null, nom text not null, primary key(code, nom)) without rowid;
create table compositions(cis integer not null, element text, code integer not null, nom text not null,
    dosage text, reference text, nature text not null, lien integer not null);
create table groupes(id integer primary key, libelle text not null);
create table groupes_membres(groupe integer not null, cis integer not null, type integer not null, rang integer);
create table conditions(cis integer not null, texte text not null);
create table disponibilites(cis integer not null, cip13 text not null, code integer not null, statut text,
    debut text, maj text, retour text, lien text);
create table avis(cis integer not null, genre text not null, dossier text not null, motif text, date text,
    valeur text, texte text, lien text);
create table mitm(cis integer not null, atc text, nom text, lien text);
create table thesaurus_entrees(id integer primary key, nom text not null, classe integer not null);
create table thesaurus_classes(classe integer not null, membre integer not null,
    primary key(classe, membre)) without rowid;
create table thesaurus_substances(entree integer not null, code integer not null,
    primary key(entree, code)) without rowid;
create table interactions(id integer primary key, a integer not null, b integer not null, niveau integer not null,
    autre integer not null, conditionnelle integer not null, risque text not null, precaution text not null);
create table recherche_noms(rang integer primary key, cis integer not null, packs blob not null);
create table recherche_mots(mot text primary key, places blob not null) without rowid;
)")
                                          .split(u';', Qt::SkipEmptyParts);
    return tables;
}

const QStringList& Index()
{
    static const QStringList index = QStringLiteral(R"(
create index presentations_cis on presentations(cis);
create unique index presentations_cip13 on presentations(cip13);
create index compositions_cis on compositions(cis);
create index compositions_code on compositions(code);
create index groupes_membres_groupe on groupes_membres(groupe);
create index groupes_membres_cis on groupes_membres(cis);
create index conditions_cis on conditions(cis);
create index disponibilites_cis on disponibilites(cis);
create index avis_cis on avis(cis);
create index mitm_cis on mitm(cis);
create index thesaurus_substances_code on thesaurus_substances(code);
create index thesaurus_classes_membre on thesaurus_classes(membre);
create index interactions_a on interactions(a, b);
create index interactions_b on interactions(b, a);
)")
                                         .split(u';', Qt::SkipEmptyParts);
    return index;
}

} // namespace banque
