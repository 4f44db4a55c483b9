#include "outside/windows/ImprimantesQt.h"

#include "application/windows/Sablier.h"
#include "common/Erreur.h"
#include "outside/TravailPdf.h"
#include "outside/messages.h"
#include "page/Rejeu.h"

#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

namespace outside {

namespace {

constexpr double kMillimetresParPouce = 25.4;

/// Each sheet of the job once, on paper of its own, whatever the printer is set to by itself.
void Prepare(QPrinter& imprimante, const QString& titre)
{
    imprimante.setDocName(titre);
    imprimante.setCreator(QStringLiteral("Scriptelle"));
    imprimante.setFullPage(true);
    imprimante.setPageSize(QPageSize(QPageSize::A4));
    imprimante.setPageOrientation(QPageLayout::Portrait);
    imprimante.setPageMargins(QMarginsF(), QPageLayout::Millimeter);
    imprimante.setDuplex(QPrinter::DuplexNone);
}

/// The origin of full page stands on the sheet's corner, whatever the printer cannot reach.
void RejoueSur(QPrinter& imprimante, const Travail& travail)
{
    QPainter peintre;
    if (!peintre.begin(&imprimante)) {
        throw common::Erreur(messages::ImprimanteNeRepondPas(imprimante.printerName()),
                             imprimante.printerName());
    }
    const double unitesParMm = imprimante.resolution() / kMillimetresParPouce;
    for (qsizetype page = 0; page < travail.Pages.size(); ++page) {
        if (page > 0 && !imprimante.newPage()) {
            throw common::Erreur(messages::ImprimanteNeRepondPas(imprimante.printerName()),
                                 imprimante.printerName());
        }
        page::Rejoue(travail.Pages.at(page), peintre, unitesParMm);
    }
    if (!peintre.end() || imprimante.printerState() == QPrinter::Error) {
        throw common::Erreur(messages::ImprimanteNeRepondPas(imprimante.printerName()),
                             imprimante.printerName());
    }
}

} // namespace

QStringList ImprimantesQt::Noms() const
{
    return QPrinterInfo::availablePrinterNames() << NomFichierPdf();
}

QString ImprimantesQt::ParDefaut() const
{
    const QString nom = QPrinterInfo::defaultPrinterName();
    return nom.isEmpty() ? NomFichierPdf() : nom;
}

void ImprimantesQt::Imprime(const QString& nom, const Travail& travail)
{
    if (nom == NomFichierPdf()) {
        ImprimeEnPdf(travail, horloge_, lanceur_, boites_);
        return;
    }
    const QPrinterInfo info = QPrinterInfo::printerInfo(nom);
    if (info.isNull()) {
        throw common::Erreur(messages::ImprimanteAbsente(nom), nom);
    }
    const application::Sablier sablier;
    QPrinter imprimante(info, QPrinter::HighResolution);
    Prepare(imprimante, travail.Titre);
    RejoueSur(imprimante, travail);
}

void ImprimantesQt::Abandonne(const Travail& /*travail*/) {}

} // namespace outside
