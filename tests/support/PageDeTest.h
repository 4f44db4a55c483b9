#pragma once

#include "page/Peintres.h"
#include "support/BoitesScript.h"

namespace support {

/// What the painters need, from fresh structs: a current patient, an empty prescription, default settings.
struct PageDeTest
{
    patients::Patient Patient;
    prescription::Ordonnance Ordonnance;
    settings::Reglages Reglages;
    certificates::Certificat Certificat;
    QList<page::LigneEntete> Entete;
    quint8 ModeApercu = 0;
    bool AvecTravail = true;
    bool AvecMedecin = true;
    QImage Logo;
    BoitesScript Boites;

    PageDeTest();

    page::Modele Modele();
    /// Adds an entry and its row.
    void Ajoute1(const QString& titre, const QString& posologie = {});
    void Ajoute2(const QString& titre, const QString& posologie = {});
    /// The 24 rows of a letterhead, all empty but those given.
    void PoseEntete(const QList<page::LigneEntete>& lignes);

    page::Dessin PeintCorps(page::Cible cible = page::Cible::Imprimante);
    page::Dessin PeintPatient(page::Cible cible = page::Cible::Imprimante);
    page::Dessin PeintEntete(page::Surface& cible);
    page::Dessin PeintCertificat(const QString& texte, page::Cible cible = page::Cible::Imprimante);
    /// Letterhead, patient and body, as a printed sheet.
    page::Dessin PeintFeuille();
};

/// An ALD sheet of 20 entries of 40 words each, in two zones, that fits no smaller page.
void RemplitDeuxZones(PageDeTest& page);

/// The texts of a drawing, in order.
QList<page::ItemTexte> Textes(const page::Dessin& dessin);
QStringList Mots(const page::Dessin& dessin);
/// The first item with that text; a failure of the test and an empty item without one.
page::ItemTexte Trouve(const page::Dessin& dessin, const QString& texte);
QList<page::ItemTrait> Traits(const page::Dessin& dessin);

/// One line for each item, with its place in millimetres, for golden files.
QString EnTexte(const page::Dessin& dessin);

/// The lines that a golden file of tests/page/attendus holds. With ECRIT_ATTENDUS in the environment it is
/// written from the drawing first.
QStringList Attendues(const QString& nom, const page::Dessin& dessin);
/// The drawing in the same form.
QStringList Obtenues(const page::Dessin& dessin);

} // namespace support
