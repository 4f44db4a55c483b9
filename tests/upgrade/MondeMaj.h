#pragma once

#include "AncienneBase.h"
#include "storage/Jeu.h"
#include "support/BaseDeTest.h"
#include "support/Monde.h"
#include "upgrade/MajDue.h"
#include "upgrade/messages.h"

#include <QDir>
#include <QDirIterator>

/// A practice of version 1 on the own disk, with the templates of this version installed and the upgrade due.
struct MondeMaj : support::Monde
{
    QString Arbre = Etat.Chemins.CheminData;
    QStringList Evenements;

    MondeMaj()
    {
        Installe();
        const QString modeles = common::Joint(Etat.Chemins.CheminProgramme, U("BasesInstal"));
        storage::CreeBase(common::Joint(modeles, U("Copie de Medoc.mdb")), storage::GenreBase::Medoc,
                          storage::ContenuInitial::Aucun);
        storage::CreeBase(common::Joint(modeles, U("Copie de Ordo.mdb")), storage::GenreBase::Ordo,
                          storage::ContenuInitial::Aucun);
        common::CreeDossier(Arbre);
        common::CopieFichier(common::Joint(modeles, U("Copie de Medoc.mdb")), Donnee("Copie de Medoc.mdb"));
    }

    QString Donnee(const char* nom) const { return common::Joint(Arbre, U(nom)); }

    /// The old databases: patients in the root's "Ordo.mdb", texts as product identifiers, two doctors.
    void PoseAncien(bool sansDates = false)
    {
        PoseAncienMedoc(sansDates);
        {
            AncienneBase racine(Donnee("Ordo.mdb"), storage::GenreBase::Ordo);
            TablesDuMedecin(racine, 23);
            racine.Table(U("Patients"), 9);
            racine.Ajoute(U("Patients"), {7, U("Monsieur"), U("MARTIN  Paul"), U("20/03/1953"), U("70"),
                                          QVariant(), U("note"), QVariant(), U("1, rue Haute")});
            racine.Ajoute(U("Patients"), {9, U("Madame"), U("DURAND  Anne"), U("01/02/1960"), U("0"),
                                          QVariant(), QVariant(), QVariant(), QVariant()});
        }
        PoseMedecinAncien("DR NEIBRE", 23);
        PoseMedecinAncien("DR DURAND", 24);
    }

    void PoseAncienMedoc(bool sansDates)
    {
        AncienneBase medoc(Donnee("Medoc.mdb"), storage::GenreBase::Medoc);
        medoc.Table(U("BddMed"), 6);
        medoc.Table(U("ListeOrdos"), 4);
        medoc.Table(U("OrdoEnr"), 8, {U("IdProduit")});
        medoc.Table(U("Vidal"), 2);
        medoc.Table(U("Biblio"), 2);
        medoc.Table(U("MedUtile"), 1);
        medoc.Ajoute(U("BddMed"), {1, QVariant(), QVariant(), U("n"), U("1 comprimé"), U("DOLIPRANE")});
        const QString date = sansDates ? U("0") : U("20/03/1953");
        medoc.Ajoute(U("ListeOrdos"), {U("Toux"), U("Monsieur  MARTIN Paul"), QVariant(), date});
        medoc.Ajoute(U("ListeOrdos"), {U("Modèle"), QVariant(), 1, QVariant()});
        medoc.Ajoute(U("OrdoEnr"), {U("Toux"), U("SIROP"), U("1 le soir"), QVariant(),
                                    U("Monsieur  MARTIN Paul"), date, U("3400930000011"), 1});
        medoc.Ajoute(U("OrdoEnr"),
                     {U("Modèle"), U("##"), QVariant(), 2, U(""), QVariant(), U("12"), QVariant()});
        medoc.Ajoute(U("Vidal"), {U("123"), QVariant()});
        medoc.Ajoute(U("Biblio"), {U("titre"), U("poso")});
        medoc.Ajoute(U("MedUtile"), {QVariant()});
    }

    static void TablesDuMedecin(AncienneBase& ordo, int lignes)
    {
        ordo.Table(U("Entete"), 8);
        ordo.Table(U("Misenpage"), 6);
        for (int i = 0; i < lignes; ++i) {
            ordo.Ajoute(U("Entete"), {i, U("ligne %1").arg(i), U("Arial"), 12.5, 1, 0, 0, i});
        }
        ordo.Ajoute(U("Misenpage"), {0, U("Arial"), 11, 1, 0, 0});
    }

    void PoseMedecinAncien(const char* nom, int lignes)
    {
        common::CreeDossier(Donnee(nom));
        AncienneBase ordo(common::Joint(Donnee(nom), U("Ordo.mdb")), storage::GenreBase::Ordo);
        TablesDuMedecin(ordo, lignes);
        ordo.Table(U("CouleurPET"), 1);
        ordo.Ajoute(U("CouleurPET"), {QVariant()});
    }

    /// The boxes of an upgrade from the first word to the last.
    void AttendMaj(int entetes = 0, bool dates = false)
    {
        namespace messages = upgrade::messages;
        Boites.AttendInformation(messages::PatientezDisque());
        AttendFin(entetes, dates);
    }
    void AttendFin(int entetes, bool dates)
    {
        namespace messages = upgrade::messages;
        for (int i = 0; i < entetes; ++i) {
            Boites.AttendInformation(messages::NouveauParametre());
        }
        if (dates) {
            Boites.AttendInformation(messages::DatesNaissance());
        }
        Boites.AttendInformation(messages::Terminee())
            .AttendInformation(dates ? messages::AutreSupportApresDates() : messages::AutreSupport());
    }

    upgrade::EcransMaj Ecrans()
    {
        return {.Travaille = {}, .AnnonceRedemarrage = [this] { Evenements += U("Redémarrer"); }};
    }
    void Maj() { upgrade::MajBases(Contexte, Ecrans(), Arbre); }

    QStringList LignesDe(const char* base, const char* table)
    {
        const bool medoc = QByteArray(base).endsWith("Medoc.mdb");
        storage::Base ouverte(Donnee(base), medoc ? storage::GenreBase::Medoc : storage::GenreBase::Ordo);
        return support::Lignes(ouverte, U(table));
    }

    /// Every file of the tree with its content, by its path below the tree.
    static QMap<QString, QByteArray> Contenu(const QString& arbre)
    {
        QMap<QString, QByteArray> contenu;
        QDirIterator fichiers(arbre, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (fichiers.hasNext()) {
            const QString chemin = fichiers.next();
            contenu.insert(QDir(arbre).relativeFilePath(chemin), common::LitFichier(chemin));
        }
        return contenu;
    }
};
