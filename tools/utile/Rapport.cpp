#include "Rapport.h"

#include "messages.h"

#include "common/Fichiers.h"

#include <QLocale>

#include <algorithm>

namespace utile {

namespace {

QString LigneTable(const BilanTable& table)
{
    QString ligne = messages::LigneDeTable(table.Nom, table.Gardees);
    if (table.Incompletes) {
        ligne += messages::Incompletes(table.Incompletes);
    }
    if (table.Perdues) {
        ligne += messages::Perdues(table.Perdues, table.AuPlus);
    }
    return table.Inconnu ? ligne + messages::PerduesSansNombre() : ligne;
}

QString Paragraphe(const Bilan& bilan)
{
    const QString tete = QStringLiteral("  %1 : %2 -> %3 (%4 -> %5)\n")
                             .arg(common::CheminAffiche(bilan.Base.Chemin), bilan.Avant, bilan.Apres,
                                  Taille(bilan.TailleAvant), Taille(bilan.TailleApres));
    QString detail = Detail(bilan);
    return detail.isEmpty() ? tete
                            : tete + QStringLiteral("      ") +
                                  detail.replace(QLatin1String("\n"), QLatin1String("\n      ")) + u'\n';
}

} // namespace

QString Taille(qint64 octets)
{
    const QLocale francais(QLocale::French);
    constexpr double kKo = 1024.0;
    return octets < kKo * kKo ? francais.toString(qRound64(octets / kKo + 0.49)) + QStringLiteral(" Ko")
                              : francais.toString(octets / kKo / kKo, 'f', 1) + QStringLiteral(" Mo");
}

QString Detail(const Bilan& bilan)
{
    QStringList lignes;
    if (!bilan.Phrase.isEmpty()) {
        lignes.append(bilan.Phrase);
    }
    if (!bilan.Copie.isEmpty()) {
        lignes.append(messages::CopieGardee(bilan.Copie));
    }
    for (const BilanTable& table : bilan.Tables) {
        lignes.append(LigneTable(table));
    }
    return lignes.join(u'\n');
}

QString LigneArbre(const Arbre& arbre)
{
    const QString nom = arbre.Chemin.isEmpty()
                            ? arbre.Libelle
                            : arbre.Libelle + QStringLiteral(" : ") + common::CheminAffiche(arbre.Chemin);
    if (!arbre.Present) {
        return nom + u' ' + arbre.Absence;
    }
    // Each base tells what work waits.
    if (!arbre.Bases.isEmpty()) {
        return nom;
    }
    return arbre.Inacheve.isEmpty() ? nom + u' ' + messages::ArbreSansBase()
                                    : nom + QStringLiteral(" — ") + arbre.Inacheve;
}

QString Rapport(const QList<Arbre>& arbres, const QList<Bilan>& bilans)
{
    if (arbres.isEmpty()) {
        return messages::AucuneDonnee() + u'\n';
    }
    QString rapport;
    for (const Arbre& arbre : arbres) {
        rapport += LigneArbre(arbre) + u'\n';
        for (const Bilan& bilan : bilans) {
            rapport += bilan.Base.Arbre == arbre.Chemin ? Paragraphe(bilan) : QString();
        }
    }
    const auto saines = std::ranges::count(bilans, Issue::Saine, &Bilan::Issue);
    return rapport + messages::Fini(saines, bilans.size()).section(u'.', 0, 0) + QStringLiteral(".\n");
}

Code CodeDe(const QList<Arbre>& arbres, const QList<Bilan>& bilans)
{
    if (arbres.isEmpty()) {
        return kSansDonnees;
    }
    const auto bonne = [](const Bilan& b) { return b.Issue == Issue::Saine || b.Issue == Issue::Attente; };
    const auto entier = [](const Arbre& a) { return a.Present && a.Inacheve.isEmpty(); };
    return std::ranges::all_of(arbres, entier) && std::ranges::all_of(bilans, bonne) ? kBon : kAttention;
}

} // namespace utile
