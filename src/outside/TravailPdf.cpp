#include "outside/TravailPdf.h"

#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "outside/Boites.h"
#include "outside/Horloge.h"
#include "outside/Lanceur.h"
#include "outside/messages.h"
#include "page/Rejeu.h"

#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSaveFile>

namespace outside {

namespace {

constexpr int kResolution = 1200; // dots per inch, that of the measure
constexpr double kMillimetresParPouce = 25.4;
constexpr qsizetype kLongueurDuNom = 80;

QString PartieDeNom(const QString& titre)
{
    QString nom;
    for (const QChar caractere : titre) {
        const bool permis = caractere.isPrint() && !QStringLiteral("<>:\"/\\|?*").contains(caractere);
        nom.append(permis ? caractere : QLatin1Char(' '));
    }
    nom = nom.simplified().left(kLongueurDuNom);
    static const QRegularExpression bords(QStringLiteral("^[. ]+|[. ]+$"));
    nom.remove(bords);
    return nom;
}

void RejouePages(const Travail& travail, QPdfWriter& pdf, const QString& chemin)
{
    QPainter peintre;
    if (!peintre.begin(&pdf)) {
        throw common::Erreur(messages::PdfNonEcrit(common::CheminAffiche(chemin)), chemin);
    }
    for (qsizetype page = 0; page < travail.Pages.size(); ++page) {
        if (page > 0) {
            pdf.newPage();
        }
        page::Rejoue(travail.Pages.at(page), peintre, kResolution / kMillimetresParPouce);
    }
}

} // namespace

QString CheminDuPdf(const Travail& travail, const QDateTime& maintenant)
{
    const QString nom =
        QStringLiteral("%1 %2")
            .arg(maintenant.toString(QStringLiteral("yyyy-MM-dd HH-mm")), PartieDeNom(travail.Titre))
            .trimmed();
    QString chemin = common::Joint(travail.CheminPdf, nom + QStringLiteral(".pdf"));
    for (int rang = 2; QFileInfo::exists(chemin); ++rang) {
        chemin = common::Joint(travail.CheminPdf, QStringLiteral("%1 (%2).pdf").arg(nom).arg(rang));
    }
    return chemin;
}

void EcritPdf(const Travail& travail, const QString& chemin)
{
    QSaveFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly)) {
        throw common::Erreur(messages::PdfNonEcrit(common::CheminAffiche(chemin)), chemin);
    }
    {
        QPdfWriter pdf(&fichier);
        pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
        pdf.setResolution(kResolution);
        pdf.setTitle(travail.Titre);
        pdf.setCreator(QStringLiteral("Scriptelle"));
        RejouePages(travail, pdf, chemin);
    }
    if (!fichier.flush() || !fichier.commit()) {
        throw common::Erreur(messages::PdfNonEcrit(common::CheminAffiche(chemin)), chemin);
    }
}

QString ImprimeEnPdf(const Travail& travail, const Horloge& horloge, Lanceur& lanceur, Boites& boites)
{
    const QString chemin = CheminDuPdf(travail, horloge.Maintenant());
    EcritPdf(travail, chemin);
    if (!lanceur.Ouvre(chemin)) {
        boites.Information(messages::PdfSansLecteur(common::CheminAffiche(chemin)));
    }
    return chemin;
}

} // namespace outside
