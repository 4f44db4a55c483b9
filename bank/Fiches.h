#pragma once

#include <QDate>
#include <QString>
#include <optional>

namespace banque {

/// A line of CIS_bdpm.txt.
struct Specialite
{
    qint64 Cis = 0;
    QString Nom;
    QString Forme;
    QString Voies; ///< separated by ';'
    QString Statut;
    QString Procedure;
    bool Commercialisee = false;
    std::optional<QDate> DateAmm;
    QString Alerte;
    QString NumeroUe;
    QString Titulaires;
    bool Surveillance = false;
    bool Homeopathie = false;
};

/// A line of CIS_CIP_bdpm.txt. Prices in hundredths of a euro.
struct Presentation
{
    qint64 Cis = 0;
    qint64 Cip7 = 0;
    QString Libelle;
    QString Statut;
    QString Etat;
    bool Declaree = false; ///< active, and declared to be on the market
    std::optional<QDate> Date;
    QString Cip13;
    bool Agrement = false;
    std::optional<int> Taux;
    std::optional<qint64> Prix;
    std::optional<qint64> PrixTotal;
    std::optional<qint64> Honoraires;
    QString Indications;
};

/// A line of CIS_COMPO_bdpm.txt.
struct Composant
{
    qint64 Cis = 0;
    QString Element;
    int Code = 0;
    QString Nom;
    QString Dosage;
    QString Reference;
    bool Fraction = false; ///< FT, the therapeutic fraction; else SA, the active substance
    int Lien = 0;          ///< the SA and FT of one number are one substance
};

/// A line of CIS_GENER_bdpm.txt.
struct Membre
{
    int Groupe = 0;
    QString Libelle;
    qint64 Cis = 0;
    int Type = 0; ///< 0 reference, 1 generic, 2 complementary by posology, 4 substitutable
    int Rang = 0;
};

/// A line of CIS_CPD_bdpm.txt.
struct Condition
{
    qint64 Cis = 0;
    QString Texte;
};

/// A line of CIS_CIP_Dispo_Spec.txt.
struct Disponibilite
{
    qint64 Cis = 0;
    QString Cip13; ///< empty: every presentation
    int Code = 0;  ///< 1 out of stock, 2 short supply, 3 no longer sold, 4 back
    QString Statut;
    std::optional<QDate> Debut;
    std::optional<QDate> MiseAJour;
    std::optional<QDate> Retour;
    QString Lien;
};

/// A line of CIS_MITM.txt: a medication of major therapeutic interest.
struct Mitm
{
    qint64 Cis = 0;
    QString Atc;
    QString Nom;
    QString Lien;
};

/// A line of HAS_LiensPageCT_bdpm.txt.
struct LienAvis
{
    QString Dossier;
    QString Lien;
};

/// A line of one of the two files of opinions.
struct Avis
{
    qint64 Cis = 0;
    QString Dossier;
    QString Motif;
    std::optional<QDate> Date;
    QString Valeur;
    QString Texte; ///< with <br>
};

} // namespace banque
