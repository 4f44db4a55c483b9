#pragma once

#include <QString>

namespace medication::messages {

inline QString Modifie()
{
    return QStringLiteral("Modifications enregistrées.");
}

inline QString SansNom()
{
    return QStringLiteral("Aucune indication de nom de médicament !");
}

inline QString Disparu()
{
    return QStringLiteral("Ce médicament n'est plus dans la base de données : rien n'a été enregistré.");
}

inline QString Retire(const QString& nom)
{
    return QStringLiteral("Supprimer ") + nom + QStringLiteral(" de la base de données ?");
}

inline QString ModifieBanque()
{
    return QStringLiteral("Modifications enregistrées !");
}

inline QString SansPosologie()
{
    return QStringLiteral("La posologie n'est pas renseignée.\n\nVoulez-vous continuer ?");
}

inline QString SupprimePersonnel(QString nom)
{
    return QStringLiteral("Supprimer \"") + nom.remove(u'#') + QStringLiteral("\" ?");
}

inline QString PersonnelDisparu()
{
    return QStringLiteral("Cette entrée n'est plus dans la pharmacie personnelle : rien n'a été changé.");
}

inline QString EnMajuscules()
{
    return QStringLiteral("Enregistrer le texte en majuscules ?");
}

inline QString Enregistre(const QString& nom)
{
    return nom + QStringLiteral("\nest enregistré dans la pharmacie.");
}

inline QString CommentSupprimer()
{
    return QStringLiteral("Pour supprimer une entrée de la Pharmacie Personnelle,\n"
                          "il faut la sélectionner, et appuyer sur F5.");
}

inline QString RechercheVide()
{
    return QStringLiteral(
        "En mode \"Base Vidal\", il faut que la zone de texte \"Reherche rapide\" soit vide "
        "pour faire apparaitre les enregistrements de la pharmacie personnelle.");
}

inline QString MemesAstuces()
{
    return QStringLiteral(
        "Les astuces de formatage de textes sont les mêmes que pour les médicaments chosis.");
}

inline QString SansDCI()
{
    return QStringLiteral("Ce produit n'a pas de DCI.");
}

inline QString SansDocumentListe()
{
    return QStringLiteral("La banque n'a aucun document pour ce médicament.");
}

inline QString BanqueFermee()
{
    return QStringLiteral(
        "La banque de médicaments n'est pas ouverte : aucun document ne peut lui être demandé.");
}

inline QString Demarque(const QString& texte)
{
    return QStringLiteral("Marquer ") + texte + QStringLiteral(" comme utilisation non fréquente ?");
}

inline QString BaseExpire(const QString& date)
{
    return QStringLiteral("La base expire le ") + date;
}

inline QString FinExploitation()
{
    return QStringLiteral("Fin d'exploitation de la base.");
}

inline QString ZoneVoulue()
{
    return QStringLiteral("Zone ALD, tapez oui.\n\nZone non ALD, tapez non.");
}

inline QString SelectionnezUnMedicament()
{
    return QStringLiteral("Sélectionnez un médicament !");
}

inline QString TitreQuantite()
{
    return QStringLiteral("Quantité");
}

inline QString QuantiteAuBesoin()
{
    return QStringLiteral(
        "Inscrire la quantité de la forme pharmaceutique choisie,\n à prendre en cas de besoin :");
}

inline QString QuantiteAuMomentVoulu()
{
    return QStringLiteral("Inscrire la quantité de la forme pharmaceutique choisie,\n à prendre au moment "
                          "voulu de la journée :");
}

inline QString AucunMedicament()
{
    return QStringLiteral("Aucun médicament n'a été choisi !");
}

inline QString AnnulerPourQuitter()
{
    return QStringLiteral("« Annuler » efface ce qui est en main et quitte la pharmacie.");
}

inline QString AucunModele()
{
    return QStringLiteral("Aucun modèle d'ordonnance n'est enregistré.");
}

inline QString Aide()
{
    return QStringLiteral(
        "L 'inscription, après un mot, et sans espace, de l'un des caractères suivants\n"
        "(*, $, £)\n"
        "permet le formatage du mot concerné :\n"
        "-     *        en gras\n"
        "-     $        en souligné\n"
        "-     £        en italique\n"
        "Ces caractères de formatage peuvent être associés, sans espace entre eux.\n"
        "Par contre, seuls ou associés, un espace doit suivre obligatoirement.\n"
        "Dans la zone de saisie des titres, le caractère # (dièse) peut être inséré, sans espace :\n"
        "- AVANT le titre : cela permet de justifier au centre le titre, et le texte des posologies.\n"
        "- APRES le titre : le texte ne sera pas reconnu comme un médicament.\n"
        "Ainsi, si vous enregistrez un texte du type 'A renouveler 2 fois', 'QSP 3 mois', "
        "-A domicile par IDE', etc..., l'option de comptabilisation des médicaments, si elle est choisie, "
        "ignorera ces lignes.");
}

inline QString HorsPage()
{
    return QStringLiteral(
        "Lignes non ALD gardées hors de l'ordonnance : cochez « Ordonnance ALD » pour les retrouver.");
}

inline QString AncienFormat()
{
    return QStringLiteral("Cette ordonnance a pu être enregistrée avant la version 2.0.0."
                          "Si vous en êtes sûr, elle peut être transformée, dans la base de données, pour "
                          "prendre en compte les interactions médicamenteuses."
                          " Continuer ?");
}

inline QString ArreterDeDemander()
{
    return QStringLiteral("Arrêter de poser la question pour cette ordonnance ?\n"
                          "___________________________________________\n"
                          "NB : savoir que, si des modifications sont enregistrées dans cette ordonnance, "
                          "la question ne sera plus posée... ce qui équivaut à OUI.");
}

inline QString Convertie()
{
    return QStringLiteral("Modifications enregistrées !"
                          "... avec quelques réserves possibles sur les interactions médicamenteuses"
                          "pour des enregistrements trop anciens.");
}

inline QString NonConvertie()
{
    return QStringLiteral("La banque de médicaments ne reconnaît aucun code de cette ordonnance.\n"
                          "Rien n'a été modifié.");
}

inline QString EditerANouveau()
{
    return QStringLiteral("Il faut éditer à nouveau cette ordonnance enregistrée pour activer la gestion des "
                          "interactions médicamenteuses."
                          "Poursuivre?");
}

inline QString SansGenerique()
{
    return QStringLiteral("Pas de spécialité générique.");
}

inline QString GeneriquesNonCherches()
{
    return QStringLiteral(
        "La banque de médicaments ne répond pas : les génériques n'ont pas pu être cherchés.");
}

inline QString AucuneInteractionImage()
{
    return QStringLiteral("\r\n\r\n\r\n\r\n\r\n\r\n"
                          "           AUCUNE  INTERACION  MEDICAMENTEUSE  DANS  L'ORDONNANCE !");
}

inline QString AucuneInteraction()
{
    return QStringLiteral("\r\n\r\n\r\n\r\n\r\n\r\n"
                          "         AUCUNE  INTERACION  MEDICAMENTEUSE  DANS  L'ORDONNANCE !");
}

inline QString InteractionsNonVerifiees()
{
    return QStringLiteral("Les interactions de cette ordonnance n'ont pas pu être vérifiées : "
                          "la banque de médicaments ne répond pas.");
}

inline QString InteractionsNonVerifieesCourt()
{
    return QStringLiteral("Interactions non vérifiées : la banque de médicaments ne répond pas.");
}

inline QString LigneNonVerifiee(const QString& titre)
{
    return QStringLiteral("Interactions non vérifiées pour : ") + titre +
           QStringLiteral(
               "\r\nCette ligne porte un code d'une ancienne version, qui ne désigne pas un produit "
               "de la banque.\r\n\r\n");
}

inline QString LigneDUneAutreBanque(const QString& titre)
{
    return QStringLiteral("Interactions non vérifiées pour : ") + titre +
           QStringLiteral(
               "\r\nCette ligne a été prescrite avec une autre banque de médicaments, dont les codes ne "
               "désignent pas les produits de celle-ci.\r\n\r\n");
}

inline QString RechercheSansBanque()
{
    return QStringLiteral("Rien n'a pu être cherché : la banque de médicaments ne répond pas.");
}

inline QString RechercheEnAttente()
{
    return QStringLiteral("La banque de médicaments démarre : la recherche sera faite dès qu'elle répond.");
}

} // namespace medication::messages
