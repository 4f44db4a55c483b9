#include "bank/bibliotheque/FicheHtml.h"

#include "bank/Mots.h"
#include "bank/Selection.h"
#include "bank/bibliotheque/FicheTextes.h"
#include "common/CleDeTri.h"

#include <QMap>
#include <QRegularExpression>

namespace banque::bibliotheque {

namespace {

using namespace fiche;

/// Colours and sizes for a browser, a text view and paper alike: plain rules on plain elements. The headings'
/// sizes are words: a text view overlooks points there.
QString Style()
{
    return QStringLiteral(
        "body { font-family: Inter, Arial, sans-serif; font-size: 10pt; color: #1d2733; background-color: "
        "#ffffff; "
        "margin: 16px; }"
        "h1 { font-size: x-large; color: #12344d; margin-top: 0px; margin-bottom: 4px; }"
        "h2 { font-size: large; color: #12344d; margin-top: 16px; margin-bottom: 4px; }"
        "p { margin-top: 4px; margin-bottom: 4px; } ul { margin-top: 4px; margin-bottom: 4px; }"
        "table { border-color: #b8c4ce; } th { background-color: #e8eef3; } th, "
        "td { text-align: left; vertical-align: top; }"
        "table.alerte td { background-color: #fdecea; color: #7a1610; }"
        "table.avis td { background-color: #fff5dc; color: #5c4400; }"
        ".discret { color: #5a6672; } a { color: #0b5a8c; }");
}

/// The head of a column and its share of the width, in percent.
struct Colonne
{
    QString Tete;
    int Largeur = 0;
};

/// A bordered table of rows already in HTML, under its heads.
QString Tableau(const QList<Colonne>& colonnes, const QList<QStringList>& rangees)
{
    QString html =
        QStringLiteral("<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\" width=\"100%\"><tr>");
    for (const Colonne& colonne : colonnes) {
        html += QStringLiteral("<th width=\"%1%\">").arg(colonne.Largeur) + Sur(colonne.Tete) +
                QStringLiteral("</th>");
    }
    html += QStringLiteral("</tr>\n");
    for (const QStringList& rangee : rangees) {
        html += QStringLiteral("<tr><td>") + rangee.join(QStringLiteral("</td><td>")) +
                QStringLiteral("</td></tr>\n");
    }
    return html + QStringLiteral("</table>\n");
}

/// A box that stands out; nothing without a line. The lines are HTML.
QString Encadre(const QString& genre, const QString& titre, const QStringList& lignes)
{
    if (lignes.isEmpty()) {
        return {};
    }
    return QStringLiteral(
               "<p></p>\n<table class=\"%1\" width=\"100%\" cellspacing=\"0\" cellpadding=\"6\"><tr><td>"
               "<b>%2</b><br>")
               .arg(genre, Sur(titre)) +
           lignes.join(QStringLiteral("<br>")) + QStringLiteral("</td></tr></table>\n<p></p>\n");
}

QString Liste(const QStringList& lignes)
{
    return QStringLiteral("<ul><li>") + lignes.join(QStringLiteral("</li>\n<li>")) +
           QStringLiteral("</li></ul>\n");
}

QString Titre(const QString& titre)
{
    return QStringLiteral("<h2>") + Sur(titre) + QStringLiteral("</h2>\n");
}

/// What the medication's own row tells.
struct Specialite
{
    bool Connue = false;
    QString Nom;
    QStringList Lignes;  ///< HTML
    QStringList Alertes; ///< HTML
};

Specialite LitSpecialite(const QSqlDatabase& base, qint64 cis)
{
    Specialite specialite;
    Selection(base, QStringLiteral(
                        "select nom, forme, voies, titulaires, statut, date_amm, commercialisee, alerte, "
                        "surveillance, homeopathie from specialites where cis = ?"))
        .PourChaque({cis}, [&](const QSqlQuery& r) {
            const auto texte = [&](int colonne) { return r.value(colonne).toString(); };
            specialite.Connue = true;
            specialite.Nom = texte(0);
            QStringList& lignes = specialite.Lignes;
            lignes += Champ(QStringLiteral("Forme"), texte(1));
            lignes += Champ(QStringLiteral("Voies"), texte(2).replace(u';', QLatin1String(", ")));
            lignes += Champ(QStringLiteral("Titulaires"), texte(3).replace(u';', QLatin1String(", ")));
            lignes +=
                Champ(QStringLiteral("Statut"), Joint({texte(4), Date(texte(5))}, QStringLiteral(" du ")));
            lignes.removeAll(QString());
            specialite.Alertes = AlertesDeSpecialite(
                {texte(4), r.value(6).toBool(), texte(7), r.value(8).toBool(), r.value(9).toBool()});
        });
    Selection(base, QStringLiteral("select distinct atc from mitm where cis = ? and atc <> '' order by atc"))
        .PourChaque({cis}, [&](const QSqlQuery& r) {
            specialite.Lignes += Champ(QStringLiteral("Médicament d'intérêt thérapeutique majeur, code ATC"),
                                       r.value(0).toString());
        });
    return specialite;
}

QStringList Disponibilites(const QSqlDatabase& base, qint64 cis)
{
    QStringList lignes;
    Selection(base,
              QStringLiteral("select d.statut, d.debut, d.retour, d.lien, p.libelle from disponibilites d "
                             "left join presentations p on p.cip13 = d.cip13 where d.cis = ? "
                             "order by d.code, d.debut desc"))
        .PourChaque({cis}, [&](const QSqlQuery& r) {
            const auto texte = [&](int colonne) { return r.value(colonne).toString(); };
            const QString depuis =
                texte(1).isEmpty() ? QString() : QStringLiteral("depuis le ") + Date(texte(1));
            const QString retour =
                texte(2).isEmpty() ? QString() : QStringLiteral("remise à disposition : ") + Date(texte(2));
            const QString ligne = Joint({texte(0), texte(4), depuis, retour}, QStringLiteral(", "));
            lignes += Sur(ligne) + Lien(texte(3), QStringLiteral("avis de l'ANSM"), QStringLiteral(" · "));
        });
    return lignes;
}

/// Narcotics and the hospital first; the conditions that bind the prescriber or the pharmacist in the box,
/// the others behind it.
QString Conditions(const QSqlDatabase& base, qint64 cis)
{
    QStringList majeures;
    QStringList fortes;
    QStringList simples;
    Selection(base, QStringLiteral("select distinct texte from conditions where cis = ? order by rowid"))
        .PourChaque({cis}, [&](const QSqlQuery& r) {
            const QString texte = r.value(0).toString();
            if (ConditionMajeure(texte)) {
                majeures += QStringLiteral("<b>") + Sur(texte) + QStringLiteral("</b>");
            } else {
                (ConditionForte(texte) ? fortes : simples) += Sur(texte);
            }
        });
    fortes = majeures + fortes;
    const QString titre = QStringLiteral("Conditions de prescription et de délivrance");
    return Encadre(QStringLiteral("avis"), titre, fortes) +
           (simples.isEmpty() ? QString()
                              : QStringLiteral("<p>") +
                                    (fortes.isEmpty() ? Sur(titre) + QStringLiteral(" : ") : QString()) +
                                    simples.join(QStringLiteral(" ; ")) + QStringLiteral("</p>\n"));
}

/// Each element with its substances; the fraction of a link behind the substance that carries it.
QString Composition(const QSqlDatabase& base, qint64 cis)
{
    QList<QStringList> rangees;
    Selection(base,
              QStringLiteral("select element, nom, dosage, reference, nature from compositions where cis = ? "
                             "order by element, lien, nature = 'FT', rowid"))
        .PourChaque({cis}, [&](const QSqlQuery& r) {
            const auto texte = [&](int colonne) { return r.value(colonne).toString(); };
            const bool fraction = texte(4) == QLatin1String("FT");
            const QString pour = texte(3).isEmpty() ? QString() : QStringLiteral("pour ") + texte(3);
            rangees.append(
                {Sur(texte(0)),
                 (fraction ? QStringLiteral("<i>soit en fraction thérapeutique :</i> ") : QString()) +
                     Sur(texte(1)),
                 Sur(Joint({texte(2), pour}, QStringLiteral(" ")))});
        });
    return rangees.isEmpty()
               ? QString()
               : Titre(QStringLiteral("Composition")) + Tableau({{QStringLiteral("Élément"), 20},
                                                                 {QStringLiteral("Substance"), 45},
                                                                 {QStringLiteral("Dosage"), 35}},
                                                                rangees);
}

QString Presentations(const QSqlDatabase& base, qint64 cis)
{
    QMap<QString, QStringList> rangees;
    QStringList indications;
    Selection(base, QStringLiteral(
                        "select libelle, cip13, prix_total, taux, commercialisee, etat, statut, indications, "
                        "agrement from presentations where cis = ?"))
        .PourChaque({cis}, [&](const QSqlQuery& r) {
            const auto texte = [&](int colonne) { return r.value(colonne).toString(); };
            const bool vendue = r.value(4).toBool();
            rangees.insert(
                (vendue ? u'0' : u'1') + CleNaturelle(texte(0)) + texte(1),
                {Sur(texte(0)) + (vendue ? QString() : QStringLiteral("<br><i>non commercialisée</i>")),
                 Sur(texte(1)), Prix(r.value(2)), Sur(Taux(r.value(3))),
                 r.value(8).toBool() ? QStringLiteral("agréée") : QString()});
            if (!texte(7).isEmpty() && !indications.contains(texte(7))) {
                indications.append(texte(7));
            }
        });
    if (rangees.isEmpty()) {
        return {};
    }
    QString html = Titre(QStringLiteral("Présentations")) +
                   Tableau({{QStringLiteral("Présentation"), 38},
                            {QStringLiteral("CIP13"), 16},
                            {QStringLiteral("Prix public, honoraires compris"), 16},
                            {QStringLiteral("Remboursé à"), 14},
                            {QStringLiteral("Collectivités"), 16}},
                           rangees.values());
    for (const QString& texte : std::as_const(indications)) {
        html += QStringLiteral("<p>") + AvecSautsDeLigne(texte) + QStringLiteral("</p>\n");
    }
    return html;
}

QString Groupes(const QSqlDatabase& base, qint64 cis)
{
    QStringList lignes;
    Selection(
        base,
        QStringLiteral("select g.libelle, m.type, (select count(*) from groupes_membres a join specialites s "
                       "on s.cis = a.cis where a.groupe = g.id and s.commercialisee) "
                       "from groupes_membres m join groupes g on g.id = m.groupe where m.cis = ? "
                       "order by g.id"))
        .PourChaque({cis}, [&](const QSqlQuery& r) {
            QString libelle = r.value(0).toString();
            libelle.remove(QRegularExpression(QStringLiteral("[.\\s]+$")));
            lignes += Sur(QStringLiteral("%1 : %2. Spécialités commercialisées du groupe : %3.")
                              .arg(libelle, TypeGenerique(r.value(1).toInt()))
                              .arg(r.value(2).toInt()));
        });
    return lignes.isEmpty() ? QString() : Titre(QStringLiteral("Groupes génériques")) + Liste(lignes);
}

/// The opinions on what it is worth, the newest first; one row for each.
QString Avis(const QSqlDatabase& base, qint64 cis, const QString& genre, const QString& titre)
{
    QList<QStringList> rangees;
    Selection(base,
              QStringLiteral("select valeur, date, motif, texte, lien from avis where cis = ? and genre = ? "
                             "order by date desc, rowid"))
        .PourChaque({cis, genre}, [&](const QSqlQuery& r) {
            const auto texte = [&](int colonne) { return r.value(colonne).toString(); };
            rangees.append({QStringLiteral("<b>") + Sur(texte(0)) + QStringLiteral("</b>"),
                            Sur(Joint({Date(texte(1)), texte(2)}, QStringLiteral(", "))) +
                                Lien(texte(4), QStringLiteral("avis complet"), QStringLiteral("<br>")),
                            AvecSautsDeLigne(texte(3))});
        });
    return rangees.isEmpty() ? QString()
                             : Titre(titre) + Tableau({{QStringLiteral("Valeur"), 14},
                                                       {QStringLiteral("Avis"), 26},
                                                       {QStringLiteral("Libellé"), 60}},
                                                      rangees);
}

QString Pied(const QSqlDatabase& base, qint64 cis)
{
    const auto information = [&](const QString& cle) {
        return Selection(base, QStringLiteral("select valeur from information where cle = ?"))
            .Valeur({cle})
            .toString();
    };
    const QString source =
        QStringLiteral("Source : %1, données du %2.")
            .arg(information(QStringLiteral("source")), Date(information(QStringLiteral("date_donnees"))));
    return QStringLiteral("<hr>\n<p class=\"discret\">") + Sur(source) + QStringLiteral("<br>") +
           Lien(FicheOfficielle(cis),
                QStringLiteral("Fiche officielle du médicament, résumé des caractéristiques et notice"),
                QString()) +
           QStringLiteral("<br>") +
           Sur(QStringLiteral(
                   "Page composée par Scriptelle à partir des données publiques ; elle ne remplace pas le "
                   "résumé des caractéristiques du produit. Code CIS %1.")
                   .arg(cis)) +
           QStringLiteral("</p>\n");
}

} // namespace

QString FicheHtml(const QSqlDatabase& base, qint64 cis)
{
    const Specialite specialite = LitSpecialite(base, cis);
    if (!specialite.Connue) {
        return {};
    }
    return QStringLiteral(
               "<!DOCTYPE html>\n<html lang=\"fr\"><head><meta charset=\"utf-8\">\n"
               "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">\n<title>") +
           Sur(specialite.Nom) + QStringLiteral("</title>\n<style>") + Style() +
           QStringLiteral("</style></head>\n<body>\n<h1>") + Sur(specialite.Nom) + QStringLiteral("</h1>\n") +
           Encadre(QStringLiteral("alerte"), QStringLiteral("Attention"), specialite.Alertes) +
           Encadre(QStringLiteral("alerte"), QStringLiteral("Disponibilité"), Disponibilites(base, cis)) +
           Conditions(base, cis) + QStringLiteral("<p>") + specialite.Lignes.join(QStringLiteral("<br>\n")) +
           QStringLiteral("</p>\n") + Composition(base, cis) + Presentations(base, cis) + Groupes(base, cis) +
           Avis(base, cis, QStringLiteral("SMR"), QStringLiteral("Service médical rendu (HAS)")) +
           Avis(base, cis, QStringLiteral("ASMR"),
                QStringLiteral("Amélioration du service médical rendu (HAS)")) +
           Pied(base, cis) + QStringLiteral("</body></html>\n");
}

} // namespace banque::bibliotheque
