#pragma once

#include "outside/Imprimantes.h"

namespace outside {

class Boites;
class Horloge;
class Lanceur;

/// The printers of the system through Qt, and "Fichier PDF".
class ImprimantesQt : public Imprimantes
{
public:
    ImprimantesQt(const Horloge& horloge, Lanceur& lanceur, Boites& boites)
        : horloge_(horloge), lanceur_(lanceur), boites_(boites)
    {}

    QStringList Noms() const override;
    QString ParDefaut() const override;
    void Imprime(const QString& nom, const Travail& travail) override;
    void Abandonne(const Travail& travail) override;

private:
    const Horloge& horloge_;
    Lanceur& lanceur_;
    Boites& boites_;
};

} // namespace outside
