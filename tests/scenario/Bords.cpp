#include "scenario/Bords.h"

#include "scenario/Echec.h"

namespace scenario {

void PlateauScenario::Ajoute(const QString& bulle)
{
    Icone = Existe;
    Bulle = bulle;
}

void PlateauScenario::Clique(Clic clic)
{
    if (!Icone || !receveur_) {
        throw Echec{QStringLiteral("aucune icône à côté de l'horloge")};
    }
    receveur_(clic);
}

bool LanceurScenario::Lance(const QString& programme, const QStringList& arguments)
{
    Relances.append({programme, arguments});
    return true;
}

bool LanceurScenario::Ouvre(const QString& documentOuAdresse)
{
    Documents.append(documentOuAdresse);
    return true;
}

} // namespace scenario
