#include "upgrade/RecopieOrdo.h"

#include "upgrade/Champs.h"
#include "upgrade/Recopie.h"

namespace upgrade {

using storage::Table;

namespace {

/// What stands for a null in each column; an empty text where a null stays.
using Reparations = QStringList;

/// Copies as many columns as there are repairs. False when the old database lacks the table.
bool CopieTable(Recopie& vers, const Source& ordo, const QString& nom, const Reparations& reparations)
{
    const Table* depuis = ordo.ChercheTable(nom);
    if (!depuis) {
        return false;
    }
    const Table& destination = vers.Destination(nom);
    QStringList champs;
    for (qsizetype i = 0; i < reparations.size(); ++i) {
        const QString champ = Champ(*depuis, i, destination.Colonnes[i].Type);
        champs.append(reparations[i].isEmpty() ? champ : SinonNul(champ, reparations[i]));
    }
    vers.Copie(0, *depuis, nom, champs);
    return true;
}

bool CopieEntete(Recopie& vers, const Source& ordo)
{
    const QString nom = QStringLiteral("Entete");
    const bool ancienne =
        CopieTable(vers, ordo, nom, Reparations(8)) &&
        vers.Nombre(QStringLiteral("select count(*) from main.Entete")) == kLignesEnteteAnciennes;
    if (ancienne) {
        const int ligne = static_cast<int>(kLignesEnteteAnciennes);
        vers.Execute(
            QStringLiteral("insert into main.Entete (NumLigne, Texte, Police, Taille) values (?, ?, ?, ?)"),
            {ligne, storage::TextePremiereEntete(ligne), QStringLiteral("Verdana"), 8});
    }
    return ancienne;
}

} // namespace

bool RecopieOrdo(const QString& copie, const Source& ordo, Suivi& suivi)
{
    const QString zero = QStringLiteral("0");
    Recopie vers(copie, storage::GenreBase::Ordo, {&ordo}, suivi);
    CopieTable(vers, ordo, QStringLiteral("CouleurPET"), {zero});
    CopieTable(vers, ordo, QStringLiteral("Certificat"),
               {QStringLiteral("''"), QStringLiteral("10"), zero, zero, zero});
    const bool nouveau = CopieEntete(vers, ordo);
    CopieTable(vers, ordo, QStringLiteral("Misenpage"), Reparations(6));
    vers.Valide();
    return nouveau;
}

} // namespace upgrade
