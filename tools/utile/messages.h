#pragma once

#include "common/Fichiers.h"

#include <QHash>
#include <QString>
#include <QStringList>

/// What the maintenance of the databases says to the doctor.
namespace utile::messages {

/// Stands in the place of a text that could not be read.
inline QString TexteIllisible()
{
    return QStringLiteral("[illisible]");
}

// The states of a database.
inline QString AVerifier()
{
    return QStringLiteral("À vérifier");
}

inline QString Saine()
{
    return QStringLiteral("Saine");
}

inline QString Endommagee()
{
    return QStringLiteral("Endommagée");
}

inline QString DispositionIncomplete()
{
    return QStringLiteral("Incomplète");
}

inline QString Reparee()
{
    return QStringLiteral("Réparée");
}

inline QString RepareeAvecPertes()
{
    return QStringLiteral("Réparée, avec des pertes");
}

inline QString Compactee()
{
    return QStringLiteral("Saine, compactée");
}

inline QString DejaCompacte()
{
    return QStringLiteral("Saine, déjà compacte");
}

inline QString Inchangee()
{
    return QStringLiteral("Inchangée");
}

inline QString Absente()
{
    return QStringLiteral("Absente");
}

inline QString Vide()
{
    return QStringLiteral("Fichier vide");
}

inline QString Jet()
{
    return QStringLiteral("Format Access");
}

inline QString Protegee()
{
    return QStringLiteral("Chiffrée ou protégée");
}

inline QString PasUneBase()
{
    return QStringLiteral("Pas une base");
}

inline QString LectureSeule()
{
    return QStringLiteral("En lecture seule");
}

inline QString EnService()
{
    return QStringLiteral("Utilisée");
}

inline QString EnAttente()
{
    return QStringLiteral("En attente");
}

inline QString TropRecente()
{
    return QStringLiteral("Trop récente");
}

inline QString Irreparable()
{
    return QStringLiteral("Irréparable");
}

inline QString Illisible()
{
    return QStringLiteral("Illisible");
}

// The sentences behind them.
inline QString ResteTelle()
{
    return QStringLiteral(" Elle n'a pas été modifiée.");
}

inline QString BaseResteTelle()
{
    return QStringLiteral(" La base n'a pas été modifiée.");
}

inline QString BaseAbsente()
{
    return QStringLiteral("Le fichier n'est plus là.");
}

inline QString BaseVide()
{
    return QStringLiteral(
        "Le fichier a une longueur nulle : il ne contient plus rien à réparer. Remettez une "
        "sauvegarde depuis Scriptelle : Outils, « Restaurer une sauvegarde… ».");
}

inline QString SeraConvertie()
{
    return QStringLiteral("La base est au format Access : elle sera convertie au prochain démarrage de "
                          "Scriptelle.") +
           ResteTelle();
}

inline QString JetProtegee()
{
    return QStringLiteral("La base Access est chiffrée ou protégée par un mot de passe : retirez la "
                          "protection dans Access.") +
           ResteTelle();
}

inline QString JetNonLue()
{
    return QStringLiteral("La base est au format Access, endommagée ou trop récente : elle ne peut pas être "
                          "réparée ici.") +
           ResteTelle();
}

inline QString Etrangere()
{
    return QStringLiteral("Le fichier n'est pas une base de données de Scriptelle, ou il est chiffré. Il n'a "
                          "pas été modifié.");
}

inline QString AutreGenre()
{
    return QStringLiteral(
        "Le fichier contient une autre base de Scriptelle que celle que son nom annonce. Il "
        "n'a pas été modifié.");
}

inline QString VersionPlusRecente()
{
    return QStringLiteral("La base a été créée par une version plus récente de Scriptelle.") + ResteTelle();
}

inline QString PasLeDroitDEcrire()
{
    return QStringLiteral("La base ou son dossier est en lecture seule.") + ResteTelle();
}

inline QString LectureRefusee()
{
    return QStringLiteral("La base ne peut pas être lue : l'accès est refusé.") + ResteTelle();
}

inline QString UtiliseePar(const QString& programme)
{
    const QString par = programme.isEmpty() ? QStringLiteral("un autre poste ou un autre programme")
                                            : QStringLiteral("le programme « %1 »").arg(programme);
    return QStringLiteral("La base est utilisée par %1 : fermez Scriptelle sur tous les postes, puis "
                          "recommencez.")
               .arg(par) +
           ResteTelle();
}

inline QString RienALire()
{
    return QStringLiteral("La base est trop endommagée : aucune ligne ne peut en être lue. Remettez une "
                          "sauvegarde depuis Scriptelle : Outils, « Restaurer une sauvegarde… ».") +
           ResteTelle();
}

inline QString LignesPerdues()
{
    return QStringLiteral("Des lignes n'ont pas pu être lues en entier. Une sauvegarde d'un jour précédent "
                          "peut les contenir : dans Scriptelle, Outils, « Restaurer une sauvegarde… ».");
}

inline QString LignesSansTable(qint64 nombre)
{
    return QStringLiteral("%1 lignes retrouvées n'ont pu être attribuées à aucune table ; elles restent dans "
                          "l'ancien fichier.")
        .arg(nombre);
}

inline QString PeutEtreSupprimees()
{
    return QStringLiteral(
        "Le début du fichier était détruit : vérifiez que des fiches supprimées autrefois ne "
        "sont pas revenues.");
}

inline QString CopieDifferente()
{
    return QStringLiteral("La nouvelle base n'a pas les mêmes lignes que l'ancienne : elle a été écartée.");
}

inline QString ChangeePendant()
{
    return QStringLiteral("La base a été modifiée par un autre poste pendant le travail : recommencez.") +
           ResteTelle();
}

inline QString CopieGardee(const QString& copie)
{
    return QStringLiteral("L'ancien fichier est gardé : « %1 ».").arg(common::CheminAffiche(copie));
}

inline QString ArretDemande()
{
    return QStringLiteral("Arrêt demandé avant cette base.") + ResteTelle();
}

/// What a doctor knows the rows of a table as; empty for a table of another layout.
inline QString ContenuDeTable(const QString& nom)
{
    static const QHash<QString, QString> contenus{
        {QStringLiteral("ListeOrdos"), QStringLiteral("ordonnances mémorisées")},
        {QStringLiteral("OrdoEnr"), QStringLiteral("lignes des ordonnances mémorisées")},
        {QStringLiteral("BddMed"), QStringLiteral("pharmacie locale")},
        {QStringLiteral("Biblio"), QStringLiteral("posologies par titre")},
        {QStringLiteral("Vidal"), QStringLiteral("posologies par code CIP")},
        {QStringLiteral("MedUtile"), QStringLiteral("conditionnements déjà prescrits")},
        {QStringLiteral("Entete"), QStringLiteral("en-tête")},
        {QStringLiteral("Misenpage"), QStringLiteral("mise en page")},
        {QStringLiteral("CouleurPET"), QStringLiteral("couleur de l'en-tête")},
        {QStringLiteral("Certificat"), QStringLiteral("police des certificats")}};
    return contenus.value(nom);
}

/// "12 lignes gardées", "1 ligne gardée": each word of `mots` in the number.
inline QString Accorde(qint64 nombre, const QStringList& mots)
{
    const QString marque = nombre < 2 ? QString() : QStringLiteral("s");
    return QString::number(nombre) + u' ' + mots.join(marque + u' ') + marque;
}

/// "Patients : 1200 lignes gardées", "BddMed (pharmacie locale) : 1 ligne gardée"
inline QString LigneDeTable(const QString& nom, qint64 gardees)
{
    const QString contenu = ContenuDeTable(nom);
    const QString lignes = Accorde(gardees, {QStringLiteral("ligne"), QStringLiteral("gardée")});
    return contenu.isEmpty() ? QStringLiteral("%1 : %2").arg(nom, lignes)
                             : QStringLiteral("%1 (%2) : %3").arg(nom, contenu, lignes);
}

inline QString Perdues(qint64 nombre, bool auPlus)
{
    const QString perdues = QStringLiteral(", ") + Accorde(nombre, {QStringLiteral("perdue")});
    return auPlus ? perdues + QStringLiteral(" au plus") : perdues;
}

inline QString PerduesSansNombre()
{
    return QStringLiteral(", des lignes perdues en nombre inconnu");
}

inline QString Incompletes(qint64 nombre)
{
    return QStringLiteral(", dont %1 (« [illisible] » remplace le texte perdu)")
        .arg(Accorde(nombre, {QStringLiteral("incomplète")}));
}

// The trees.
inline QString DemarrezDAbord(const QString& travail)
{
    return QStringLiteral("Démarrez d'abord Scriptelle sur ces données : %1.").arg(travail);
}

inline QString MajInachevee()
{
    return DemarrezDAbord(QStringLiteral("une mise à jour des bases y est en cours ou inachevée"));
}

inline QString TransfertInacheve()
{
    return DemarrezDAbord(QStringLiteral("un transfert de données y est en cours ou inachevé"));
}

inline QString RestaurationInachevee()
{
    return DemarrezDAbord(QStringLiteral("la restauration d'une sauvegarde y est en cours ou inachevée"));
}

inline QString DisqueLocal()
{
    return QStringLiteral("Disque de l'ordinateur");
}

inline QString Serveur()
{
    return QStringLiteral("Serveur");
}

inline QString Support()
{
    return QStringLiteral("Support amovible");
}

inline QString ArbreAbsent()
{
    return QStringLiteral("n'est pas accessible en ce moment");
}

inline QString SupportAbsent()
{
    return QStringLiteral("n'est pas branché");
}

inline QString ArbreSansBase()
{
    return QStringLiteral("ne contient aucune base");
}

inline QString AucuneDonnee()
{
    return QStringLiteral("Scriptelle n'a encore aucune donnée sur cet ordinateur : démarrez d'abord "
                          "Scriptelle.");
}

// The window.
inline QString TitreFenetre()
{
    return QStringLiteral("Réparer et compacter les bases de données");
}

inline QString Conseil()
{
    return QStringLiteral(
        "Fermez Scriptelle sur tous les postes. Chaque base changée est gardée telle qu'elle "
        "était, avec sa date, dans « Sauvegardes » ou à côté.");
}

inline QString EnCours(const QString& base, int rang, int nombre)
{
    return QStringLiteral("Base %2 sur %3 : %1").arg(base).arg(rang).arg(nombre);
}

inline QString ArretApresCelleCi()
{
    return QStringLiteral("Arrêt dès que la base en cours est terminée…");
}

inline QString Fini(qint64 saines, qint64 nombre)
{
    return QStringLiteral("Terminé, bases saines : %1 sur %2. Choisissez une base pour en lire le détail.")
        .arg(saines)
        .arg(nombre);
}

inline QString Usage()
{
    return QStringLiteral("Usage : Utile [--rapport]");
}

} // namespace utile::messages
