#include "bank/Selection.h"

#include "bank/messages.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>

namespace banque {

Selection::Selection(const QSqlDatabase& base, const QString& instruction)
    : chemin_(base.databaseName()), requete_(base)
{
    requete_.setForwardOnly(true);
    if (!requete_.prepare(instruction)) {
        Echoue();
    }
}

QVariant Selection::Valeur(const QVariantList& valeurs)
{
    Lance(valeurs);
    const QVariant valeur = Suivante() ? requete_.value(0) : QVariant();
    requete_.finish();
    return valeur;
}

void Selection::Lance(const QVariantList& valeurs)
{
    for (int i = 0; i < valeurs.size(); ++i) {
        requete_.bindValue(i, valeurs[i]);
    }
    if (!requete_.exec()) {
        Echoue();
    }
}

bool Selection::Suivante()
{
    if (requete_.next()) {
        return true;
    }
    if (requete_.lastError().isValid()) {
        Echoue();
    }
    return false;
}

void Selection::Echoue() const
{
    throw common::Erreur(messages::LectureRefusee(QFileInfo(chemin_).fileName(), requete_.lastError().text()),
                         common::CheminAffiche(chemin_));
}

} // namespace banque
