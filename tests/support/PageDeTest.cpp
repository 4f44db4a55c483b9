#include "support/PageDeTest.h"

#include <QFile>
#include <QTest>

namespace support {

namespace {

void Ajoute(QList<prescription::Entree>& entrees, prescription::LignesZone& lignes, const QString& titre,
            const QString& posologie)
{
    const int indice = static_cast<int>(entrees.size());
    entrees.append({titre, posologie});
    const QString vu = titre == QLatin1String("##") ? QStringLiteral("#") : titre;
    lignes.Ajoute({QStringLiteral("  ") + vu + QString(100, QLatin1Char(' ')) + QLatin1Char('1'), indice});
}

QString Nombre(double valeur)
{
    return QString::number(valeur, 'f', 2);
}

QString Style(const page::Police& police)
{
    QString style = QStringLiteral("%1 %2").arg(police.Nom).arg(police.Taille);
    style += police.Gras ? QStringLiteral(" gras") : QString();
    style += police.Italique ? QStringLiteral(" italique") : QString();
    style += police.Souligne ? QStringLiteral(" souligne") : QString();
    return style;
}

struct Redacteur
{
    QString operator()(const page::ItemTexte& item) const
    {
        QStringList parties{QStringLiteral("texte"),
                            Nombre(item.X),
                            Nombre(item.Y),
                            Nombre(item.Largeur),
                            Nombre(item.Hauteur),
                            QLatin1Char('"') + item.Texte + QLatin1Char('"'),
                            QLatin1Char('[') + Style(item.Police) + QLatin1Char(']')};
        return parties.join(QLatin1Char(' ')) + QStringLiteral(" %1").arg(item.Encre);
    }
    QString operator()(const page::ItemTrait& item) const { return Ligne(QStringLiteral("trait"), item); }
    QString operator()(const page::ItemCadre& item) const { return Ligne(QStringLiteral("cadre"), item); }
    QString operator()(const page::ItemImage& item) const
    {
        return QStringList{QStringLiteral("image"), Nombre(item.X), Nombre(item.Y), Nombre(item.Largeur),
                           Nombre(item.Hauteur)}
            .join(QLatin1Char(' '));
    }

    template <typename Item> static QString Ligne(const QString& genre, const Item& item)
    {
        return QStringList{genre,           Nombre(item.X),
                           Nombre(item.Y),  Nombre(item.X2),
                           Nombre(item.Y2), QStringLiteral("%1 %2").arg(item.Epaisseur).arg(item.Encre)}
            .join(QLatin1Char(' '));
    }
};

} // namespace

PageDeTest::PageDeTest()
{
    Patient.PatientCourant = QStringLiteral("Monsieur  MARTIN  Paul");
    Patient.NomSeul = QStringLiteral("MARTIN  Paul");
    Patient.DateNaissance = QStringLiteral("20/03/1953");
    Patient.DateOrdo = QStringLiteral("20/11/2026");
    Patient.ModePatient = 1;
}

page::Modele PageDeTest::Modele()
{
    return {.Patient = Patient,
            .Ordonnance = Ordonnance,
            .Reglages = Reglages,
            .Entete = Entete,
            .Aujourdhui = QDate(2026, 11, 20),
            .ModeApercu = ModeApercu,
            .AvecTravail = AvecTravail,
            .AvecMedecin = AvecMedecin};
}

void PageDeTest::Ajoute1(const QString& titre, const QString& posologie)
{
    Ajoute(Ordonnance.OrdoZone1, Ordonnance.LstChoix1, titre, posologie);
}

void PageDeTest::Ajoute2(const QString& titre, const QString& posologie)
{
    Ajoute(Ordonnance.OrdoZone2, Ordonnance.LstChoix2, titre, posologie);
}

void PageDeTest::PoseEntete(const QList<page::LigneEntete>& lignes)
{
    Entete.clear();
    for (int numero = 0; numero < 24; ++numero) {
        Entete.append({.NumLigne = numero, .Texte = {}, .Police = {}});
    }
    for (const page::LigneEntete& ligne : lignes) {
        Entete[ligne.NumLigne] = ligne;
    }
}

page::Dessin PageDeTest::PeintCorps(page::Cible cible)
{
    page::Surface surface(cible);
    page::Modele modele = Modele();
    page::PeintOrdo(surface, modele);
    return surface.Resultat();
}

page::Dessin PageDeTest::PeintPatient(page::Cible cible)
{
    page::Surface surface(cible);
    page::Modele modele = Modele();
    page::PeintPatient(surface, modele, Boites);
    return surface.Resultat();
}

page::Dessin PageDeTest::PeintEntete(page::Surface& cible)
{
    page::PeintEntete(cible, Modele(), Logo);
    return cible.Resultat();
}

page::Dessin PageDeTest::PeintCertificat(const QString& texte, page::Cible cible)
{
    page::Surface surface(cible);
    page::Modele modele = Modele();
    page::PeintCertificat(surface, modele, {Certificat, texte, Reglages.TxtSLP}, Boites);
    return surface.Resultat();
}

page::Dessin PageDeTest::PeintFeuille()
{
    page::Surface surface(page::Cible::Imprimante);
    page::Modele modele = Modele();
    page::PeintEntete(surface, modele, Logo);
    page::PeintPatient(surface, modele, Boites);
    page::PeintOrdo(surface, modele);
    return surface.Resultat();
}

void RemplitDeuxZones(PageDeTest& page)
{
    const QStringList mots = QStringLiteral("1 comprimé matin* midi et soir, pendant le repas avec un grand "
                                            "verre d'eau$ jusqu'à la disparition des signes£ puis")
                                 .split(QLatin1Char(' '));
    QStringList posologie;
    for (int mot = 0; mot < 40; ++mot) {
        posologie.append(mots[mot % mots.size()]);
    }
    page.Ordonnance.ChkALD = 1;
    page.Ordonnance.NbMedZone1 = page.Ordonnance.NbMedZone2 = 10;
    page.Reglages.Options.SautsPrescription = 1;
    page.Reglages.Options.IncrementeMedicaments = page.Reglages.Options.TotalMedicaments = 1;
    page.Reglages.Look.Titre = {.Taille = 9, .Gras = true};
    page.Reglages.Look.Poso = {.Taille = 7};
    for (int rang = 0; rang < 10; ++rang) {
        page.Ajoute1(QStringLiteral("DOLIPRANE 1 000 mg cp : B/8"), posologie.join(QLatin1Char(' ')));
        page.Ajoute2(QStringLiteral("#LEVOTHYROX 75 µg cp"), posologie.join(QLatin1Char(' ')));
    }
}

QList<page::ItemTexte> Textes(const page::Dessin& dessin)
{
    QList<page::ItemTexte> textes;
    for (const page::Item& item : dessin.Items) {
        if (const auto* texte = std::get_if<page::ItemTexte>(&item)) {
            textes.append(*texte);
        }
    }
    return textes;
}

QStringList Mots(const page::Dessin& dessin)
{
    QStringList mots;
    for (const page::ItemTexte& item : Textes(dessin)) {
        mots.append(item.Texte);
    }
    return mots;
}

page::ItemTexte Trouve(const page::Dessin& dessin, const QString& texte)
{
    for (const page::ItemTexte& item : Textes(dessin)) {
        if (item.Texte == texte) {
            return item;
        }
    }
    QTest::qFail(qPrintable(QStringLiteral("texte absent : ") + texte + QStringLiteral("\ndessin :\n") +
                            EnTexte(dessin)),
                 __FILE__, __LINE__);
    return {};
}

QList<page::ItemTrait> Traits(const page::Dessin& dessin)
{
    QList<page::ItemTrait> traits;
    for (const page::Item& item : dessin.Items) {
        if (const auto* trait = std::get_if<page::ItemTrait>(&item)) {
            traits.append(*trait);
        }
    }
    return traits;
}

QString EnTexte(const page::Dessin& dessin)
{
    QString texte;
    for (const page::Item& item : dessin.Items) {
        texte += std::visit(Redacteur{}, item) + QLatin1Char('\n');
    }
    return texte;
}

QStringList Attendues(const QString& nom, const page::Dessin& dessin)
{
    QFile fichier(QStringLiteral(RACINE_PROJET "/tests/page/attendus/") + nom);
    if (qEnvironmentVariableIsSet("ECRIT_ATTENDUS") && fichier.open(QIODevice::WriteOnly)) {
        fichier.write(EnTexte(dessin).toUtf8());
        fichier.close();
    }
    return fichier.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichier.readAll()).split(u'\n')
                                             : QStringList{QStringLiteral("fichier absent : ") + nom};
}

QStringList Obtenues(const page::Dessin& dessin)
{
    return EnTexte(dessin).split(u'\n');
}

} // namespace support
