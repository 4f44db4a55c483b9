#pragma once

#include "outside/Boites.h"
#include "outside/Horloge.h"
#include "outside/Imprimantes.h"
#include "outside/Lanceur.h"

namespace scenario {

/// Printers that keep their jobs. "Fichier PDF" writes the real file and opens it.
class ImprimantesScenario : public outside::Imprimantes
{
public:
    struct Recu
    {
        QString Imprimante;
        outside::Travail Travail;
    };

    ImprimantesScenario(const outside::Horloge& horloge, outside::Lanceur& lanceur, outside::Boites& boites)
        : horloge_(horloge), lanceur_(lanceur), boites_(boites)
    {}

    QStringList Noms() const override;
    QString ParDefaut() const override;
    void Imprime(const QString& nom, const outside::Travail& travail) override;
    void Abandonne(const outside::Travail& travail) override { Abandonnes.append(travail); }

    QStringList Systeme = {QStringLiteral("Bureau")};
    QString Defaut = QStringLiteral("Bureau");
    /// Where each job of a system's printer is kept as "travail-N.pdf"; empty for nowhere.
    QString DossierPdf;
    QList<Recu> Recus;
    QList<outside::Travail> Abandonnes;

private:
    const outside::Horloge& horloge_;
    outside::Lanceur& lanceur_;
    outside::Boites& boites_;
};

} // namespace scenario
